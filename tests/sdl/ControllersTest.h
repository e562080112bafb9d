#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <future>
#include <memory>
#include <string>
#include <utility>

#include "CollectingQueue.h"
#include "LinuxGameControllers.h"
#include "VirtualPads.h"

namespace vantorel::test {

/// The real service with pads that the test plugs in and works. The pads of the machine that the tests run on
/// are there too, so tests look for their own by name.
class ControllersTest : public testing::Test {
 protected:
  ControllersTest() {
    unsetenv("VANTOREL_VIRTUAL_PADS");
    unsetenv("SDL_GAMECONTROLLERCONFIG");
    unsetenv("SDL_JOYSTICK_DEVICE");
  }
  ~ControllersTest() override { stop(); }

  void start(PadPlaces places = {}) {
    service_ = std::make_unique<LinuxGameControllers>(queue_, std::move(places));
  }

  void stop() {
    if (!service_) return;
    if (pads_) onSdlThread([this] { pads_.reset(); });
    service_.reset();
  }

  LinuxGameControllers& service() {
    if (!service_) start();
    return *service_;
  }

  /// Runs `block` on SDL's thread. When it returns, SDL has looked and everything that follows is posted.
  void onSdlThread(std::function<void()> block) {
    std::promise<void> looked;
    service().performOnSdlThread(std::move(block));
    service().performOnSdlThread([&] { looked.set_value(); });
    looked.get_future().wait();
  }

  /// Carries out a line for the virtual pads and what follows from it.
  void play(const std::string& line) {
    onSdlThread([&] {
      if (!pads_) pads_ = std::make_unique<VirtualPads>();
      pads_->execute(line);
    });
  }

  /// The listed controller of that name; null without one.
  std::shared_ptr<LinuxController> find(const std::string& name) {
    for (const auto& controller : service().linuxControllers()) {
      if (controller->vendorName() == name) return controller;
    }
    return nullptr;
  }

  /// Plugs in a virtual pad and takes notice of it.
  std::shared_ptr<LinuxController> attach(const std::string& name, const std::string& ids = "") {
    play("attach \"" + name + "\" " + ids);
    queue_.run();
    return find(name);
  }

  CollectingQueue queue_;

 private:
  std::unique_ptr<LinuxGameControllers> service_;
  std::unique_ptr<VirtualPads> pads_;  // SDL's thread
};

}  // namespace vantorel::test
