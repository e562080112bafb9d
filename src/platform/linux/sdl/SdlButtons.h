#pragma once

#include <SDL.h>

#include <optional>

#include "GamepadButton.h"

namespace vantorel {

/// The button that SDL reports as `button`; none for those that cannot be mapped to a key.
std::optional<GamepadButton> gamepadButtonOf(SDL_GameControllerButton button);

/// SDL's name of `button`; none for the triggers, which are axes to SDL.
std::optional<SDL_GameControllerButton> sdlButtonOf(GamepadButton button);

}  // namespace vantorel
