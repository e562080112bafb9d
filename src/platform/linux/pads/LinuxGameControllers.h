#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "ControllerThread.h"
#include "GameControllers.h"
#include "Lifetime.h"
#include "LinuxController.h"
#include "MainQueue.h"
#include "Observers.h"
#include "PadPlaces.h"

namespace vantorel {

/// The controllers that are plugged into this machine: all pads that SDL's database knows, and other
/// joysticks without a profile.
///
/// SDL runs on a thread of its own, which sleeps until a pad, a plug or a command wakes it, and which loads
/// SDL only when there may be a pad. The states of the inputs follow the pads at once, also while the main
/// thread is busy; notifications and change handlers come through the main queue. A pad that is unplugged
/// reads as neutral, without a call of its change handlers; only a release that the kernel itself reports on
/// the way out is told like any other.
///
/// One object at a time in a process. When the environment variable VANTOREL_VIRTUAL_PADS names a pipe, pads
/// without hardware are worked through it; see VirtualPads.
class LinuxGameControllers final : public GameControllers {
 public:
  /// Starts to look for controllers and returns at once. `mainQueue` must outlive this object; what is still
  /// posted there when this object goes does nothing. Other `places` than the machine's are for tests.
  explicit LinuxGameControllers(MainQueue& mainQueue, PadPlaces places = {});

  /// Waits for the controllers that were there at the start when it is asked for the first time; where there
  /// can be none, that does not take SDL. A controller joins and leaves the list together with its
  /// notification.
  std::vector<std::shared_ptr<Controller>> controllers() override;
  void setShouldMonitorBackgroundEvents(bool should) override;
  [[nodiscard]] Subscription observeConnect(
      std::function<void(const std::shared_ptr<Controller>& controller)> handler) override;
  [[nodiscard]] Subscription observeDisconnect(std::function<void()> handler) override;

  /// The same controllers as `controllers()`, with what is known of them here. Main thread.
  const std::vector<std::shared_ptr<LinuxController>>& linuxControllers();

  /// Lets SDL look at its devices although nothing called for it, and loads it for that. For tests; any
  /// thread.
  void wake();

  /// Runs `block` on SDL's thread, where SDL's own functions may be called, and then lets SDL look. For
  /// tests; any thread. The block is lost when SDL could not start or this object goes.
  void performOnSdlThread(std::function<void()> block);

  /// Whether anything, a pad or a block for SDL's thread, has called for SDL yet. For tests; any thread.
  bool isSdlWanted() const;

  /// How often SDL's thread has woken since its start. For tests; any thread.
  std::uint64_t wakeUps() const;

 private:
  PadEvents postingEvents();
  void didConnect(const std::shared_ptr<LinuxController>& controller);
  void didDisconnect(const std::shared_ptr<LinuxController>& controller);

  MainQueue& mainQueue_;
  Observers<const std::shared_ptr<Controller>&> connects_;
  Observers<> disconnects_;
  std::optional<std::vector<std::shared_ptr<LinuxController>>>
      controllers_;  // none before the first question
  Lifetime lifetime_;
  ControllerThread thread_;  // uses what stands above: it ends first
};

}  // namespace vantorel
