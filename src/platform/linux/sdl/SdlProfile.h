#pragma once

#include <SDL.h>

#include "ControllerProfile.h"

namespace vantorel {

/// The profile that the inputs of `controller` make. SDL's thread.
ControllerProfile controllerProfile(SDL_GameController& controller);

}  // namespace vantorel
