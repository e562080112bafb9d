#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>

namespace vantorel {

/// A running repeating timer; destroying it ends it. Once destroyed its handler is not called again: the
/// destructor waits for a call that is under way on another thread. A handler may destroy its own timer.
class Timer {
 public:
  virtual ~Timer() = default;
};

/// Repeating timers without leeway. They keep to the grid of their start; firings that were missed are
/// merged into one.
class Timers {
 public:
  virtual ~Timers() = default;

  /// A timer on a serial queue of its own (a thread of high priority, named `label`); it fires first at
  /// once. Main thread.
  virtual std::unique_ptr<Timer> startQueueTimer(const std::string& label, std::chrono::milliseconds interval,
                                                 std::function<void()> handler) = 0;

  /// A timer of the main thread; it fires first after one interval. Main thread.
  virtual std::unique_ptr<Timer> startMainTimer(std::chrono::milliseconds interval,
                                                std::function<void()> handler) = 0;
};

}  // namespace vantorel
