#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "AppLanguage.h"

namespace vantorel {

/// The sixteen buttons of a controller that can be mapped to a key, in the order of every list of them.
enum class GamepadButton : std::uint8_t {
  buttonA,
  buttonB,
  buttonX,
  buttonY,
  leftShoulder,
  rightShoulder,
  leftTrigger,
  rightTrigger,
  leftThumbstick,
  rightThumbstick,
  dpadUp,
  dpadDown,
  dpadLeft,
  dpadRight,
  menu,
  options,
};

/// The number of buttons; a button's value is below it.
inline constexpr std::size_t gamepadButtonCount = 16;

/// All buttons in declaration order.
const std::array<GamepadButton, gamepadButtonCount>& allGamepadButtons();

/// The name under which `button` is stored; it also identifies the button in lists.
std::string_view rawValue(GamepadButton button);

/// The button stored as `rawValue`, or none; upper and lower case differ.
std::optional<GamepadButton> gamepadButton(std::string_view rawValue);

std::string_view englishName(GamepadButton button);
std::string_view chineseName(GamepadButton button);

/// The name that the interface shows in `language`.
std::string_view displayName(GamepadButton button, AppLanguage language);

}  // namespace vantorel
