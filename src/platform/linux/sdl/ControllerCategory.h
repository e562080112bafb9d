#pragma once

#include <SDL.h>

#include <string>

namespace vantorel {

/// The product category of a pad of `type`, as the families of controllers are told apart by it; "Gamepad"
/// for a type that has none of its own.
std::string controllerCategory(SDL_GameControllerType type);

}  // namespace vantorel
