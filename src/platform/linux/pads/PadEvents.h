#pragma once

#include <functional>
#include <memory>

#include "GamepadButton.h"
#include "LinuxController.h"

namespace vantorel {

/// What is told of the pads, in the order in which it happened. Called on SDL's thread.
struct PadEvents {
  std::function<void(const std::shared_ptr<LinuxController>& controller)> connected;
  /// The controller already reads as neutral.
  std::function<void(const std::shared_ptr<LinuxController>& controller)> disconnected;
  std::function<void(const std::shared_ptr<LinuxController>& controller, GamepadButton button,
                     bool isPressed)>
      changed;
};

}  // namespace vantorel
