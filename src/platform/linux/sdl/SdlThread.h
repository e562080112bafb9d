#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <future>
#include <memory>
#include <thread>
#include <vector>

#include "CommandQueue.h"
#include "SdlController.h"
#include "SdlPads.h"

namespace vantorel {

/// The thread to which SDL belongs, from init to quit. The commands, the events and the states of the
/// controllers are all that passes between it and the others.
class SdlThread {
 public:
  /// Returns at once. `events` are called on the thread; they may not outlive what they refer to, which must
  /// therefore outlive this object.
  explicit SdlThread(PadEvents events);
  SdlThread(const SdlThread&) = delete;
  SdlThread& operator=(const SdlThread&) = delete;
  /// Waits for the end of the thread, which follows at once.
  ~SdlThread();

  /// Waits for the pads that were there at the start, the one connected first in front: all that are not told
  /// of as connected later. When SDL cannot start there are none, and the reason is on standard error. To be
  /// called once.
  std::vector<std::shared_ptr<SdlController>> firstScan() { return firstScan_.get(); }

  /// Runs `command` on the thread and then lets SDL look. Any thread.
  void perform(CommandQueue::Command command) { commands_.push(std::move(command)); }

  /// How often the thread has woken. Any thread.
  std::uint64_t wakeUps() const { return wakeUps_.load(); }

 private:
  void run(const PadEvents& events, std::promise<std::vector<std::shared_ptr<SdlController>>> found);

  CommandQueue commands_;
  std::atomic<bool> isStopping_ = false;
  std::atomic<std::uint64_t> wakeUps_ = 0;
  std::future<std::vector<std::shared_ptr<SdlController>>> firstScan_;
  std::thread thread_;
};

}  // namespace vantorel
