#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "EmbeddedPlatform.h"

namespace vantorel::test {

using namespace std::chrono_literals;

/// The embedded platform with what it recorded.
class Machine {
 public:
  EmbeddedPlatform platform{[this](std::string_view line) { recorded.emplace_back(line); }};

  /// The lines recorded since the last call, without their times.
  std::vector<std::string> take() {
    std::vector<std::string> taken;
    for (const std::string& line : recorded) taken.push_back(line.substr(timeWidth));
    recorded.clear();
    return taken;
  }

  /// The same of the program's own lines alone, without their mark and the time of the log.
  std::vector<std::string> takeOutput() {
    std::vector<std::string> output;
    for (const std::string& line : take()) {
      if (line.rfind("| ", 0) != 0) continue;
      const std::string text = line.substr(2);
      output.push_back(text.rfind('[', 0) == 0 ? text.substr(logTimeWidth) : text);
    }
    return output;
  }

  /// The same of what reached the outside world alone.
  std::vector<std::string> takeEffects() {
    std::vector<std::string> effects;
    for (const std::string& line : take()) {
      if (line.rfind("| ", 0) != 0) effects.push_back(line);
    }
    return effects;
  }

  /// A plugged controller with the extended profile.
  std::shared_ptr<EmbeddedController> plugPad(const std::string& vendor = "Xbox Wireless Controller",
                                              const std::string& category = "Xbox One") {
    return plug({vendor, category, ControllerProfile::extended, {}});
  }

  std::shared_ptr<EmbeddedController> plug(ControllerDescription description) {
    auto controller = platform.gameControllers.declare(std::move(description));
    platform.gameControllers.plug(controller);
    platform.time.settle();
    return controller;
  }

  void advance(std::chrono::milliseconds duration) { platform.time.advance(duration); }
  void settle() { platform.time.settle(); }

 private:
  static constexpr std::size_t timeWidth = 11;     // "    0.000  "
  static constexpr std::size_t logTimeWidth = 11;  // "[09:00:00] "
  std::vector<std::string> recorded;
};

}  // namespace vantorel::test
