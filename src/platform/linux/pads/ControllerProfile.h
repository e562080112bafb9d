#pragma once

#include <cstdint>
#include <string_view>

namespace vantorel {

/// How much of a gamepad a controller is.
enum class ControllerProfile : std::uint8_t {
  none,      ///< less than a micro gamepad
  micro,     ///< A, X and a directional pad
  extended,  ///< every input of a full-sized gamepad; the stick buttons and the options button may lack
};

/// "none", "micro" or "extended".
std::string_view displayName(ControllerProfile profile);

}  // namespace vantorel
