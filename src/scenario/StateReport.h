#pragma once

#include <string>
#include <vector>

#include "WindowState.h"

namespace vantorel {

/// The published state of `window` and what it owns, one `NAME VALUE` a line.
std::vector<std::string> stateReport(const WindowState& window);

}  // namespace vantorel
