#include "OutsideWorld.h"

#include <variant>

namespace vantorel {

void OutsideWorld::perform(const WorldCommand& command) {
  std::visit([this](const auto& particular) { perform(particular); }, command);
}

void OutsideWorld::perform(const PrepareDefaults& command) {
  if (command.isData) {
    platform.userDefaults.prepareData(command.key, command.text);
  } else {
    platform.userDefaults.prepareString(command.key, command.text);
  }
}

void OutsideWorld::perform(const DeclareDevice& command) {
  devices.emplace(command.name, platform.gameControllers.declare(command.description));
}

void OutsideWorld::perform(const ChangeButton& command) {
  EmbeddedController& device = *devices.at(command.name);
  if (command.isPressed) {
    device.press(command.button);
  } else {
    device.release(command.button);
  }
}

void OutsideWorld::perform(const MoveStick& command) {
  EmbeddedController& device = *devices.at(command.name);
  if (command.stick == Stick::left) {
    device.moveLeftThumbstick(command.position);
  } else {
    device.moveRightThumbstick(command.position);
  }
}

}  // namespace vantorel
