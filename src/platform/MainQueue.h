#pragma once

#include <functional>

namespace vantorel {

/// The queue of the main thread: blocks run there one at a time, in the order in which they were posted.
class MainQueue {
 public:
  virtual ~MainQueue() = default;

  /// Runs `block` later on the main thread, never within this call. Any thread.
  virtual void post(std::function<void()> block) = 0;
};

}  // namespace vantorel
