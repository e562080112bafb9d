#pragma once

#include <optional>
#include <string>

#include "WindowState.h"

namespace vantorel {

/// Draws the window of `state` without a display, as high as its content, and writes it to `file` as a PNG.
/// Returns what went wrong, or none. Makes a QApplication of its own: there is no other before or after it.
std::optional<std::string> drawScreenshot(WindowState& state, const std::string& file);

}  // namespace vantorel
