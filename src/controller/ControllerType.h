#pragma once

#include <cstdint>
#include <string_view>

#include "GameControllers.h"

namespace vantorel {

/// The families of controllers that the program tells apart.
enum class ControllerType : std::uint8_t { unknown, xbox, ps4, ps5, switchPro };

/// The family as the log names it.
std::string_view displayText(ControllerType type);

/// The name of the case.
std::string_view caseName(ControllerType type);

/// The family of `controller` by its vendor name and product category.
ControllerType identifyControllerType(const Controller& controller);

}  // namespace vantorel
