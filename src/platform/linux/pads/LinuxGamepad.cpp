#include "LinuxGamepad.h"

#include <cstddef>

namespace vantorel {

LinuxButtonInput* LinuxGamepad::input(GamepadButton button) {
  const auto index = static_cast<std::size_t>(button);
  return buttons_.test(index) ? &inputs_.at(index) : nullptr;
}

void LinuxGamepad::becomeNeutral() {
  for (LinuxButtonInput& input : inputs_) input.setPressed(false);
  left_.store({});
  right_.store({});
}

}  // namespace vantorel
