#pragma once

#include <chrono>
#include <optional>

#include "PadLoop.h"
#include "SdlPads.h"
#include "SdlSession.h"
#include "VirtualPadPipe.h"
#include "VirtualPads.h"

namespace vantorel {

/// What SDL's thread does: sleep until a file descriptor has news, and let SDL look. Nothing is ever asked on
/// the chance that it may have changed.
class SdlLoop final : public PadLoop {
 public:
  /// Starts SDL. Throws std::runtime_error when that fails.
  explicit SdlLoop(const PadLoopContext& context) : context_(context) {}

  void look(const PadEvents& events) override;
  void turn() override;

 private:
  void sleep();
  void lookAgainSoon();
  void carryOutCommands();
  void carryOutLines(const PadEvents& events);

  SdlSession session_;
  const PadLoopContext context_;
  SdlPads pads_;
  VirtualPadPipe pipe_;
  VirtualPads virtualPads_;
  std::optional<std::chrono::steady_clock::time_point> secondLook_;
};

}  // namespace vantorel
