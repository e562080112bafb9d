#pragma once

#include <memory>
#include <string>
#include <thread>

#include "Timers.h"

namespace vantorel {

/// A timer with a thread of its own; it fires first at once.
class QueueTimer final : public Timer {
 public:
  QueueTimer(const std::string& label, std::chrono::milliseconds interval, std::function<void()> handler);
  QueueTimer(const QueueTimer&) = delete;
  QueueTimer& operator=(const QueueTimer&) = delete;

  /// Waits for a call of the handler that is under way, unless it comes from within that call.
  ~QueueTimer() override;

 private:
  struct Queue;

  std::shared_ptr<Queue> queue;
  std::thread thread;
};

}  // namespace vantorel
