#include "EmbeddedController.h"

#include <utility>

namespace vantorel {

EmbeddedController::EmbeddedController(MainQueue& queue, ControllerDescription facts)
    : description(std::move(facts)) {
  if (description.profile == ControllerProfile::extended) {
    gamepad = std::make_shared<EmbeddedGamepad>(queue, description.missingButtons);
  }
}

void EmbeddedController::moveLeftThumbstick(StickPosition position) {
  if (plugged && gamepad) gamepad->setLeftThumbstick(position);
}

void EmbeddedController::moveRightThumbstick(StickPosition position) {
  if (plugged && gamepad) gamepad->setRightThumbstick(position);
}

void EmbeddedController::setPlugged(bool isNowPlugged) {
  plugged = isNowPlugged;
  if (!plugged && gamepad) gamepad->setToNeutral();
}

void EmbeddedController::change(GamepadButton button, bool isPressed) {
  if (!plugged || !gamepad) return;
  if (EmbeddedButton* const input = gamepad->find(button)) input->change(isPressed);
}

}  // namespace vantorel
