#include "VirtualPad.h"

#include <stdexcept>

#include "SdlButtons.h"

namespace vantorel {
namespace {

SDL_VirtualJoystickDesc describe(const std::string& name, std::uint16_t vendor, std::uint16_t product) {
  SDL_VirtualJoystickDesc description{};
  description.version = SDL_VIRTUAL_JOYSTICK_DESC_VERSION;
  description.type = SDL_JOYSTICK_TYPE_GAMECONTROLLER;
  description.naxes = SDL_CONTROLLER_AXIS_MAX;
  description.nbuttons = SDL_CONTROLLER_BUTTON_MAX;
  description.button_mask = (1U << SDL_CONTROLLER_BUTTON_MAX) - 1;  // all, so that a button's number is SDL's
  description.axis_mask = (1U << SDL_CONTROLLER_AXIS_MAX) - 1;
  description.vendor_id = vendor;
  description.product_id = product;
  description.name = name.c_str();
  return description;
}

}  // namespace

VirtualPad::VirtualPad(const std::string& name, std::uint16_t vendor, std::uint16_t product) {
  const SDL_VirtualJoystickDesc description = describe(name, vendor, product);
  const int index = SDL_JoystickAttachVirtualEx(&description);
  if (index >= 0) joystick_ = SDL_JoystickOpen(index);
  if (joystick_ == nullptr) throw std::runtime_error(SDL_GetError());
  id_ = SDL_JoystickInstanceID(joystick_);
  setAxis(SDL_CONTROLLER_AXIS_TRIGGERLEFT, SDL_JOYSTICK_AXIS_MIN);
  setAxis(SDL_CONTROLLER_AXIS_TRIGGERRIGHT, SDL_JOYSTICK_AXIS_MIN);
}

VirtualPad::~VirtualPad() {
  for (int index = 0; index < SDL_NumJoysticks(); ++index) {
    if (SDL_JoystickGetDeviceInstanceID(index) != id_) continue;
    SDL_JoystickDetachVirtual(index);
    break;
  }
  SDL_JoystickClose(joystick_);
}

void VirtualPad::setButton(GamepadButton button, bool isPressed) {
  if (const auto sdlButton = sdlButtonOf(button)) {
    SDL_JoystickSetVirtualButton(joystick_, *sdlButton, isPressed ? SDL_PRESSED : SDL_RELEASED);
    return;
  }
  const bool isLeft = button == GamepadButton::leftTrigger;
  setAxis(isLeft ? SDL_CONTROLLER_AXIS_TRIGGERLEFT : SDL_CONTROLLER_AXIS_TRIGGERRIGHT,
          isPressed ? SDL_JOYSTICK_AXIS_MAX : SDL_JOYSTICK_AXIS_MIN);
}

void VirtualPad::setAxis(SDL_GameControllerAxis axis, std::int16_t value) {
  SDL_JoystickSetVirtualAxis(joystick_, axis, value);
}

}  // namespace vantorel
