#pragma once

#include <filesystem>
#include <memory>

#include "PadLoop.h"

namespace vantorel {

/// Loads `module`, found from the directory of the program, which brings SDL with it, and starts its loop.
/// Throws std::runtime_error, with the reason, when either fails. SDL's thread.
///
/// Loading SDL takes milliseconds of a start and megabytes of memory, and most desktops have no pad connected
/// when the program starts. Therefore SDL is no part of the program: it comes with this module when a pad may
/// be there for the first time. The module stays loaded until the process ends, as its functions live on in
/// what it has handed out.
std::unique_ptr<PadLoop> loadPadLoop(const std::filesystem::path& module, const PadLoopContext& context);

/// What the module exports by the name `makePadLoopName`: it puts its loop into `loop`. Throws
/// std::runtime_error when SDL does not start.
using MakePadLoop = void(const PadLoopContext& context, std::unique_ptr<PadLoop>& loop);
constexpr const char* makePadLoopName = "vantorelMakePadLoop";

}  // namespace vantorel
