#include "ControllerCategory.h"

namespace vantorel {

std::string controllerCategory(SDL_GameControllerType type) {
  switch (type) {
    case SDL_CONTROLLER_TYPE_XBOX360:
      return "Xbox 360";
    case SDL_CONTROLLER_TYPE_XBOXONE:
      return "Xbox One";
    case SDL_CONTROLLER_TYPE_PS3:
      return "DualShock 3";
    case SDL_CONTROLLER_TYPE_PS4:
      return "DualShock 4";
    case SDL_CONTROLLER_TYPE_PS5:
      return "DualSense";
    case SDL_CONTROLLER_TYPE_NINTENDO_SWITCH_PRO:
      return "Switch Pro Controller";
    case SDL_CONTROLLER_TYPE_NINTENDO_SWITCH_JOYCON_LEFT:
    case SDL_CONTROLLER_TYPE_NINTENDO_SWITCH_JOYCON_RIGHT:
    case SDL_CONTROLLER_TYPE_NINTENDO_SWITCH_JOYCON_PAIR:
      return "Joy-Con";
    case SDL_CONTROLLER_TYPE_GOOGLE_STADIA:
      return "Stadia";
    case SDL_CONTROLLER_TYPE_AMAZON_LUNA:
      return "Luna";
    case SDL_CONTROLLER_TYPE_NVIDIA_SHIELD:
      return "Shield";
    case SDL_CONTROLLER_TYPE_VIRTUAL:
      return "Virtual";
    case SDL_CONTROLLER_TYPE_UNKNOWN:
      break;
  }
  return "Gamepad";
}

}  // namespace vantorel
