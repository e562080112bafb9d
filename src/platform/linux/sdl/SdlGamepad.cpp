#include "SdlGamepad.h"

#include <cstddef>

namespace vantorel {

SdlButtonInput* SdlGamepad::input(GamepadButton button) {
  const auto index = static_cast<std::size_t>(button);
  return buttons_.test(index) ? &inputs_.at(index) : nullptr;
}

void SdlGamepad::becomeNeutral() {
  for (SdlButtonInput& input : inputs_) input.setPressed(false);
  left_.store({});
  right_.store({});
}

}  // namespace vantorel
