#include "SdlPad.h"

#include <fcntl.h>

#include <cerrno>
#include <cstring>
#include <iostream>
#include <optional>
#include <string>
#include <utility>

#include "ControllerCategory.h"
#include "SdlButtons.h"
#include "SdlProfile.h"
#include "StickDeflection.h"

namespace vantorel {
namespace {

std::string textOf(const char* text) { return text == nullptr ? "" : text; }

LinuxGamepad::ButtonSet buttonsOf(SDL_GameController& controller) {
  LinuxGamepad::ButtonSet buttons;
  for (const GamepadButton button : allGamepadButtons()) {
    const auto sdlButton = sdlButtonOf(button);
    const bool isTrigger = !sdlButton;
    buttons.set(static_cast<std::size_t>(button),
                isTrigger || SDL_GameControllerHasButton(&controller, *sdlButton) == SDL_TRUE);
  }
  return buttons;
}

void setButton(LinuxGamepad& gamepad, GamepadButton button, bool isPressed,
               const SdlPad::ButtonChanged& changed) {
  LinuxButtonInput* const input = gamepad.input(button);
  if (input != nullptr && input->setPressed(isPressed)) changed(button, isPressed);
}

}  // namespace

std::unique_ptr<SdlPad> SdlPad::open(int deviceIndex) {
  JoystickHandle joystick(SDL_JoystickOpen(deviceIndex));
  if (!joystick) {
    std::cerr << "vantorel: cannot open the controller " << textOf(SDL_JoystickNameForIndex(deviceIndex))
              << ": " << SDL_GetError() << std::endl;
    return nullptr;
  }
  const bool isKnown = SDL_IsGameController(deviceIndex) == SDL_TRUE;
  ControllerHandle gameController(isKnown ? SDL_GameControllerOpen(deviceIndex) : nullptr);
  return std::unique_ptr<SdlPad>(new SdlPad(std::move(joystick), std::move(gameController)));
}

SdlPad::SdlPad(JoystickHandle joystick, ControllerHandle gameController)
    : joystick_(std::move(joystick)),
      gameController_(std::move(gameController)),
      controller_(std::make_shared<LinuxController>(describe(*joystick_, gameController_.get()))) {
  const std::string& path = controller_->node();
  if (path.empty()) return;
  node_ = PolledFile::open(path, O_RDONLY);
  if (node_.isOpen()) return;
  std::cerr << "vantorel: cannot watch " << path << ": " << std::strerror(errno) << std::endl;
}

SdlPad::~SdlPad() { becomeNeutral(); }

LinuxController::Description SdlPad::describe(SDL_Joystick& joystick, SDL_GameController* gameController) {
  LinuxController::Description description;
  const std::string name = textOf(gameController != nullptr ? SDL_GameControllerName(gameController)
                                                            : SDL_JoystickName(&joystick));
  if (!name.empty()) description.name = name;
  description.category = controllerCategory(
      gameController != nullptr ? SDL_GameControllerGetType(gameController) : SDL_CONTROLLER_TYPE_UNKNOWN);
  description.node = textOf(SDL_JoystickPath(&joystick));
  if (gameController != nullptr) {
    description.profile = controllerProfile(*gameController);
    description.buttons = buttonsOf(*gameController);
  }
  return description;
}

bool SdlPad::drainNode() {
  if (node_.drain() == PolledFile::State::ended) {
    isLost_ = true;
    becomeNeutral();
  }
  return !isLost_;
}

void SdlPad::handle(const SDL_Event& event, const ButtonChanged& changed) {
  LinuxGamepad* const gamepad = controller_->gamepad();
  // SDL lets all buttons up and centres all axes before it tells of an unplugging.
  const bool isGone = isLost_ || SDL_JoystickGetAttached(joystick_.get()) == SDL_FALSE;
  if (gamepad == nullptr || isGone) return;
  if (event.type == SDL_CONTROLLERAXISMOTION) {
    moveAxis(*gamepad, event.caxis, changed);
  } else {
    const auto button = gamepadButtonOf(static_cast<SDL_GameControllerButton>(event.cbutton.button));
    if (button) setButton(*gamepad, *button, event.cbutton.state == SDL_PRESSED, changed);
  }
}

void SdlPad::moveAxis(LinuxGamepad& gamepad, const SDL_ControllerAxisEvent& event,
                      const ButtonChanged& changed) {
  StickPosition left = gamepad.leftThumbstick();
  StickPosition right = gamepad.rightThumbstick();
  switch (event.axis) {
    case SDL_CONTROLLER_AXIS_LEFTX:
      left.x = stickDeflection(event.value);
      break;
    case SDL_CONTROLLER_AXIS_LEFTY:
      left.y = upwardDeflection(event.value);
      break;
    case SDL_CONTROLLER_AXIS_RIGHTX:
      right.x = stickDeflection(event.value);
      break;
    case SDL_CONTROLLER_AXIS_RIGHTY:
      right.y = upwardDeflection(event.value);
      break;
    case SDL_CONTROLLER_AXIS_TRIGGERLEFT:
      setButton(gamepad, GamepadButton::leftTrigger, leftTrigger_.update(event.value), changed);
      break;
    case SDL_CONTROLLER_AXIS_TRIGGERRIGHT:
      setButton(gamepad, GamepadButton::rightTrigger, rightTrigger_.update(event.value), changed);
      break;
    default:
      break;
  }
  gamepad.setLeftThumbstick(left);
  gamepad.setRightThumbstick(right);
}

void SdlPad::becomeNeutral() {
  if (LinuxGamepad* const gamepad = controller_->gamepad()) gamepad->becomeNeutral();
}

}  // namespace vantorel
