#include "SdlButtons.h"

#include <algorithm>
#include <array>

namespace vantorel {
namespace {

struct ButtonPair {
  GamepadButton ours;
  SDL_GameControllerButton sdls;
};

constexpr std::array buttonPairs{
    ButtonPair{GamepadButton::buttonA, SDL_CONTROLLER_BUTTON_A},
    ButtonPair{GamepadButton::buttonB, SDL_CONTROLLER_BUTTON_B},
    ButtonPair{GamepadButton::buttonX, SDL_CONTROLLER_BUTTON_X},
    ButtonPair{GamepadButton::buttonY, SDL_CONTROLLER_BUTTON_Y},
    ButtonPair{GamepadButton::leftShoulder, SDL_CONTROLLER_BUTTON_LEFTSHOULDER},
    ButtonPair{GamepadButton::rightShoulder, SDL_CONTROLLER_BUTTON_RIGHTSHOULDER},
    ButtonPair{GamepadButton::leftThumbstick, SDL_CONTROLLER_BUTTON_LEFTSTICK},
    ButtonPair{GamepadButton::rightThumbstick, SDL_CONTROLLER_BUTTON_RIGHTSTICK},
    ButtonPair{GamepadButton::dpadUp, SDL_CONTROLLER_BUTTON_DPAD_UP},
    ButtonPair{GamepadButton::dpadDown, SDL_CONTROLLER_BUTTON_DPAD_DOWN},
    ButtonPair{GamepadButton::dpadLeft, SDL_CONTROLLER_BUTTON_DPAD_LEFT},
    ButtonPair{GamepadButton::dpadRight, SDL_CONTROLLER_BUTTON_DPAD_RIGHT},
    ButtonPair{GamepadButton::menu, SDL_CONTROLLER_BUTTON_START},
    ButtonPair{GamepadButton::options, SDL_CONTROLLER_BUTTON_BACK},
};

}  // namespace

std::optional<GamepadButton> gamepadButtonOf(SDL_GameControllerButton button) {
  const auto* const found = std::find_if(buttonPairs.begin(), buttonPairs.end(),
                                         [&](const ButtonPair& pair) { return pair.sdls == button; });
  if (found == buttonPairs.end()) return std::nullopt;
  return found->ours;
}

std::optional<SDL_GameControllerButton> sdlButtonOf(GamepadButton button) {
  const auto* const found = std::find_if(buttonPairs.begin(), buttonPairs.end(),
                                         [&](const ButtonPair& pair) { return pair.ours == button; });
  if (found == buttonPairs.end()) return std::nullopt;
  return found->sdls;
}

}  // namespace vantorel
