#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <vector>

#include "CommandQueue.h"
#include "DeviceMonitor.h"
#include "SdlController.h"
#include "SdlPads.h"
#include "SdlSession.h"
#include "VirtualPadPipe.h"
#include "VirtualPads.h"

namespace vantorel {

/// What SDL's thread does: sleep until a file descriptor has news, and let SDL look. Nothing is ever asked on
/// the chance that it may have changed.
class SdlLoop {
 public:
  /// Starts SDL. Throws std::runtime_error when that fails.
  SdlLoop(CommandQueue& commands, PadEvents events);

  /// Finds the pads that are already there, the one connected first in front; `connected` is not called for
  /// them.
  std::vector<std::shared_ptr<SdlController>> firstScan();

  /// Sleeps until something happens and carries it out.
  void turn();

 private:
  void sleep();
  void carryOutCommands();
  void carryOutLines(const PadEvents& events);

  const SdlSession session_;
  CommandQueue& commands_;
  const PadEvents events_;
  DeviceMonitor monitor_;
  SdlPads pads_;
  VirtualPadPipe pipe_;
  VirtualPads virtualPads_;
  std::optional<std::chrono::steady_clock::time_point> secondLook_;
};

}  // namespace vantorel
