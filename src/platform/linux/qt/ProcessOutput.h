#pragma once

#include <mutex>

#include "StandardOutput.h"

namespace vantorel {

/// Standard output as it is, without a buffer: a line is out when `writeLine` returns.
///
/// A reader that has gone away does not end the program: SIGPIPE is ignored from here on, and lines that
/// cannot be written are dropped.
class ProcessOutput final : public StandardOutput {
 public:
  explicit ProcessOutput(int outputDescriptor = 1);

  void writeLine(std::string_view line) override;

 private:
  const int descriptor;
  std::mutex mutex;  // one line at a time
};

}  // namespace vantorel
