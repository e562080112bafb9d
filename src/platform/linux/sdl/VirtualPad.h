#pragma once

#include <SDL.h>

#include <cstdint>
#include <string>

#include "GamepadButton.h"

namespace vantorel {

/// A pad without hardware, plugged in as long as this object lives. SDL's thread.
class VirtualPad {
 public:
  /// Throws std::runtime_error when SDL refuses.
  VirtualPad(const std::string& name, std::uint16_t vendor, std::uint16_t product);
  VirtualPad(const VirtualPad&) = delete;
  VirtualPad& operator=(const VirtualPad&) = delete;
  ~VirtualPad();

  void setButton(GamepadButton button, bool isPressed);
  /// `value` as SDL counts: positive to the right and downwards; triggers rest at -32768.
  void setAxis(SDL_GameControllerAxis axis, std::int16_t value);

 private:
  SDL_Joystick* joystick_ = nullptr;
  SDL_JoystickID id_ = -1;
};

}  // namespace vantorel
