#include "GamepadButton.h"

#include <algorithm>

namespace vantorel {
namespace {

struct ButtonNames {
  std::string_view rawValue;
  std::string_view englishName;
  std::string_view chineseName;
};

/// Indexed by the button's value.
constexpr std::array<ButtonNames, gamepadButtonCount> names{{
    {"buttonA", "A", "A"},
    {"buttonB", "B", "B"},
    {"buttonX", "X", "X"},
    {"buttonY", "Y", "Y"},
    {"leftShoulder", "L1 (LB)", "左肩键 (L1)"},
    {"rightShoulder", "R1 (RB)", "右肩键 (R1)"},
    {"leftTrigger", "L2 (LT)", "左扳机 (L2)"},
    {"rightTrigger", "R2 (RT)", "右扳机 (R2)"},
    {"leftThumbstick", "LEFT_STICK", "左摇杆按下"},
    {"rightThumbstick", "RIGHT_STICK", "右摇杆按下"},
    {"dpadUp", "D-PAD_UP", "方向键上"},
    {"dpadDown", "D-PAD_DOWN", "方向键下"},
    {"dpadLeft", "D-PAD_LEFT", "方向键左"},
    {"dpadRight", "D-PAD_RIGHT", "方向键右"},
    {"menu", "MENU", "菜单键"},
    {"options", "OPTIONS", "选项键"},
}};

const ButtonNames& namesOf(GamepadButton button) { return names.at(static_cast<std::size_t>(button)); }

}  // namespace

const std::array<GamepadButton, gamepadButtonCount>& allGamepadButtons() {
  static const auto all = [] {
    std::array<GamepadButton, gamepadButtonCount> buttons{};
    for (std::size_t index = 0; index < buttons.size(); ++index) {
      buttons[index] = static_cast<GamepadButton>(index);
    }
    return buttons;
  }();
  return all;
}

std::string_view rawValue(GamepadButton button) { return namesOf(button).rawValue; }

std::optional<GamepadButton> gamepadButton(std::string_view rawValue) {
  const auto* const found = std::find_if(
      names.begin(), names.end(), [&](const ButtonNames& entry) { return entry.rawValue == rawValue; });
  if (found == names.end()) return std::nullopt;
  return static_cast<GamepadButton>(found - names.begin());
}

std::string_view englishName(GamepadButton button) { return namesOf(button).englishName; }

std::string_view chineseName(GamepadButton button) { return namesOf(button).chineseName; }

std::string_view displayName(GamepadButton button, AppLanguage language) {
  return language == AppLanguage::chinese ? chineseName(button) : englishName(button);
}

}  // namespace vantorel
