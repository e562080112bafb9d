#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "EmbeddedPlatform.h"

namespace vantorel {

/// Keeps the transcript of an embedded platform.
class EmbeddedRecord {
 public:
  Transcript::Sink sink() {
    return [this](std::string_view line) { timed.emplace_back(line); };
  }

  /// The lines so far, each with its time.
  const std::vector<std::string>& timedLines() const { return timed; }

  /// The lines so far without their times.
  std::vector<std::string> lines() const {
    std::vector<std::string> result;
    for (const std::string& line : timed) result.push_back(line.substr(timeWidth));
    return result;
  }

  /// Those of the lines without their times that begin with `prefix`.
  std::vector<std::string> linesWith(std::string_view prefix) const {
    std::vector<std::string> result;
    for (const std::string& line : lines()) {
      if (line.starts_with(prefix)) result.push_back(line);
    }
    return result;
  }

  void clear() { timed.clear(); }

 private:
  static constexpr std::size_t timeWidth = 11;  ///< nine characters and two blanks
  std::vector<std::string> timed;
};

}  // namespace vantorel
