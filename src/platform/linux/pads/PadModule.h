#pragma once

#include <filesystem>
#include <memory>

#include "PadLoop.h"
#include "PolledFile.h"

namespace vantorel {

/// The module that brings SDL with it.
///
/// Loading SDL takes milliseconds of a start and megabytes of memory, and most desktops have no pad connected
/// when the program starts. Therefore SDL is no part of the program: it comes with this module when a pad may
/// be there for the first time. The module's file is opened at the start: a program that runs for days may
/// have been built anew by then, and the new module would not fit it. Once loaded, the module stays until the
/// process ends, as its functions live on in what it has handed out.
class PadModule {
 public:
  /// Opens `name`, found from the directory of the program. Throws std::runtime_error, with the reason, when
  /// that fails.
  explicit PadModule(const std::filesystem::path& name);

  /// Loads the module and starts its loop. Throws std::runtime_error, with the reason, when either fails.
  /// SDL's thread.
  std::unique_ptr<PadLoop> makeLoop(const PadLoopContext& context) const;

 private:
  PolledFile file_;
};

/// What the module exports by the name `makePadLoopName`: it puts its loop into `loop`. Throws
/// std::runtime_error when SDL does not start.
using MakePadLoop = void(const PadLoopContext& context, std::unique_ptr<PadLoop>& loop);
constexpr const char* makePadLoopName = "vantorelMakePadLoop";

}  // namespace vantorel
