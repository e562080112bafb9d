#pragma once

#include <deque>
#include <functional>
#include <mutex>

#include "PolledFile.h"

namespace vantorel {

/// Blocks on their way to SDL's thread, and the descriptor that wakes it.
class CommandQueue {
 public:
  using Command = std::function<void()>;

  /// Throws std::system_error when the system is out of descriptors.
  CommandQueue();

  /// Puts `command` at the end; an empty one is nothing. Any thread.
  void push(Command command);

  /// Readable when commands wait.
  int descriptor() const { return bell_.descriptor(); }

  /// Takes the first command; an empty one when none waits. SDL's thread.
  Command pop();

 private:
  PolledFile bell_;
  std::mutex mutex_;
  std::deque<Command> commands_;  // guarded by mutex_
};

}  // namespace vantorel
