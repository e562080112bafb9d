#pragma once

#include "Timers.h"

namespace vantorel {

/// The timers of the kernel: those of a queue on a thread of their own, those of the main thread on Qt's
/// event loop, which needs the QCoreApplication. An interval below a millisecond counts as one.
class QtTimers final : public Timers {
 public:
  /// The thread's name is cut to the 15 bytes that the kernel keeps. The priority is raised as far as the
  /// user may do that.
  std::unique_ptr<Timer> startQueueTimer(const std::string& label, std::chrono::milliseconds interval,
                                         std::function<void()> handler) override;

  std::unique_ptr<Timer> startMainTimer(std::chrono::milliseconds interval,
                                        std::function<void()> handler) override;
};

}  // namespace vantorel
