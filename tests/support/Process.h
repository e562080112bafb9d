#pragma once

#include <sys/types.h>

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "FileDescriptor.h"
#include "WaitUntil.h"

namespace vantorel::test {

/// A program running beside the test. It ends with this object, and also when the thread that started it
/// ends in any way, a crash included.
class Process {
 public:
  /// Starts `program` (a path, or a name looked up in PATH) with nothing on its standard input. `environment`
  /// is laid over the test's own: "NAME=value" sets a variable, a bare "NAME" removes it. A program that is
  /// not there shows as the exit status 127.
  explicit Process(const std::string& program, const std::vector<std::string>& arguments = {},
                   const std::vector<std::string>& environment = {});
  Process(const Process&) = delete;
  Process& operator=(const Process&) = delete;

  /// Ends the program: by SIGTERM, or SIGKILL when that does not help, and waits for its end.
  ~Process();

  pid_t pid() const { return pid_; }

  /// Everything that the program has written so far; also while it runs.
  std::string output() const;
  std::string errorOutput() const;

  /// Sends the signal `number`, unless the program has ended.
  void signal(int number);

  bool isRunning();

  /// The exit status, 128 + N after the signal N; none if the program still runs at the deadline.
  std::optional<int> waitForExit(std::chrono::milliseconds deadline = generousDeadline);

 private:
  FileDescriptor output_;
  FileDescriptor errorOutput_;
  pid_t pid_ = -1;
  std::optional<int> exitStatus_;
};

}  // namespace vantorel::test
