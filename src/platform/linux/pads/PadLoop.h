#pragma once

#include <atomic>
#include <memory>

#include "CommandQueue.h"
#include "DeviceMonitor.h"
#include "PadEvents.h"

namespace vantorel {

/// What reaches a PadLoop from outside, and what it tells; all of it outlives the loop.
struct PadLoopContext {
  CommandQueue& commands;
  DeviceMonitor& monitor;
  const std::atomic<bool>& monitorsBackground;  ///< whether pads are heard without a window in front
  const PadEvents& events;
};

/// What the thread of the controllers does as soon as a pad may be there: all of SDL, in a module of its own
/// (see loadPadLoop). SDL's thread.
class PadLoop {
 public:
  PadLoop() = default;
  PadLoop(const PadLoop&) = delete;
  PadLoop& operator=(const PadLoop&) = delete;
  virtual ~PadLoop() = default;

  /// Finds the pads that are already there and tells `events` of them, the one connected first in front. To
  /// be called once, before the turns.
  virtual void look(const PadEvents& events) = 0;

  /// Sleeps until something happens and carries it out.
  virtual void turn() = 0;
};

}  // namespace vantorel
