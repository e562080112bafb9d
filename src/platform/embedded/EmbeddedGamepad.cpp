#include "EmbeddedGamepad.h"

namespace vantorel {

EmbeddedGamepad::EmbeddedGamepad(MainQueue& queue, const std::set<GamepadButton>& missingButtons) {
  for (const GamepadButton button : allGamepadButtons()) {
    if (!missingButtons.contains(button)) buttons.try_emplace(button, queue);
  }
}

EmbeddedButton* EmbeddedGamepad::find(GamepadButton button) {
  const auto entry = buttons.find(button);
  return entry == buttons.end() ? nullptr : &entry->second;
}

void EmbeddedGamepad::setToNeutral() {
  for (auto& [name, button] : buttons) button.setToNeutral();
  left = {};
  right = {};
}

}  // namespace vantorel
