#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <future>
#include <memory>
#include <thread>
#include <vector>

#include "CommandQueue.h"
#include "DeviceMonitor.h"
#include "LinuxController.h"
#include "PadEvents.h"
#include "PadPlaces.h"

namespace vantorel {

/// The thread to which SDL belongs, from init to quit. It sleeps without SDL until a pad may be there or a
/// command wants to run; see loadPadLoop for the reason. The commands, the events and the states of the
/// controllers are all that passes between it and the others.
class ControllerThread {
 public:
  /// Returns at once. `events` are called on the thread; they may not outlive what they refer to, which must
  /// therefore outlive this object.
  ControllerThread(PadEvents events, PadPlaces places);
  ControllerThread(const ControllerThread&) = delete;
  ControllerThread& operator=(const ControllerThread&) = delete;
  /// Waits for the end of the thread, which follows at once.
  ~ControllerThread();

  /// Waits for the pads that were there at the start, the one connected first in front: all that are not told
  /// of as connected later. When SDL cannot start there are none, and the reason is on standard error. To be
  /// called once.
  std::vector<std::shared_ptr<LinuxController>> firstScan() { return firstScan_.get(); }

  /// Runs `command` on the thread, with SDL, and then lets SDL look. Any thread.
  void perform(CommandQueue::Command command) { commands_.push(std::move(command)); }

  /// Whether pads are heard without a window in front; so it is from the start. It does not call for SDL, but
  /// holds for all that is performed later. Any thread.
  void setMonitorsBackground(bool should);

  /// Whether anything has called for SDL yet. Any thread.
  bool isSdlWanted() const { return isSdlWanted_.load(); }

  /// How often the thread has woken. Any thread.
  std::uint64_t wakeUps() const { return wakeUps_.load(); }

 private:
  using Pads = std::vector<std::shared_ptr<LinuxController>>;

  void run(const PadEvents& events, const PadPlaces& places, std::promise<Pads> found);
  void sleepUntilSdlIsWanted(DeviceMonitor& monitor, const PadPlaces& places);

  CommandQueue commands_;
  std::atomic<bool> monitorsBackground_ = true;
  std::atomic<bool> isSdlWanted_ = false;
  std::atomic<bool> isStopping_ = false;
  std::atomic<std::uint64_t> wakeUps_ = 0;
  std::future<Pads> firstScan_;
  std::thread thread_;
};

}  // namespace vantorel
