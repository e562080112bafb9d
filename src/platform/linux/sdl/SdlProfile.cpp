#include "SdlProfile.h"

#include <algorithm>
#include <array>

namespace vantorel {
namespace {

constexpr std::array microButtons{
    SDL_CONTROLLER_BUTTON_A,         SDL_CONTROLLER_BUTTON_X,         SDL_CONTROLLER_BUTTON_DPAD_UP,
    SDL_CONTROLLER_BUTTON_DPAD_DOWN, SDL_CONTROLLER_BUTTON_DPAD_LEFT, SDL_CONTROLLER_BUTTON_DPAD_RIGHT,
};

/// What the extended profile requires beyond the micro one.
constexpr std::array extendedButtons{
    SDL_CONTROLLER_BUTTON_B,
    SDL_CONTROLLER_BUTTON_Y,
    SDL_CONTROLLER_BUTTON_LEFTSHOULDER,
    SDL_CONTROLLER_BUTTON_RIGHTSHOULDER,
    SDL_CONTROLLER_BUTTON_START,
};
constexpr std::array extendedAxes{
    SDL_CONTROLLER_AXIS_LEFTX,  SDL_CONTROLLER_AXIS_LEFTY,       SDL_CONTROLLER_AXIS_RIGHTX,
    SDL_CONTROLLER_AXIS_RIGHTY, SDL_CONTROLLER_AXIS_TRIGGERLEFT, SDL_CONTROLLER_AXIS_TRIGGERRIGHT,
};

}  // namespace

ControllerProfile controllerProfile(SDL_GameController& controller) {
  const auto hasButton = [&](SDL_GameControllerButton button) {
    return SDL_GameControllerHasButton(&controller, button) == SDL_TRUE;
  };
  const auto hasAxis = [&](SDL_GameControllerAxis axis) {
    return SDL_GameControllerHasAxis(&controller, axis) == SDL_TRUE;
  };
  if (!std::all_of(microButtons.begin(), microButtons.end(), hasButton)) return ControllerProfile::none;
  const bool isFullSized = std::all_of(extendedButtons.begin(), extendedButtons.end(), hasButton) &&
                           std::all_of(extendedAxes.begin(), extendedAxes.end(), hasAxis);
  return isFullSized ? ControllerProfile::extended : ControllerProfile::micro;
}

}  // namespace vantorel
