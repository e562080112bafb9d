#pragma once

#include <string_view>

namespace vantorel {

/// The built-in scenario, which shows every main feature of the program.
std::string_view demoScenario();

}  // namespace vantorel
