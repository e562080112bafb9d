#pragma once

#include <string_view>

namespace vantorel {

/// The standard output of the process.
class StandardOutput {
 public:
  virtual ~StandardOutput() = default;

  /// Writes `line` and a newline at once; lines of several threads do not mix. Any thread.
  virtual void writeLine(std::string_view line) = 0;
};

}  // namespace vantorel
