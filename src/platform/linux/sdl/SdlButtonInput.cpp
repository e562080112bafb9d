#include "SdlButtonInput.h"

#include <utility>

namespace vantorel {

void SdlButtonInput::setPressedChangedHandler(PressedChangedHandler handler) {
  handler_ = std::move(handler);
}

void SdlButtonInput::callHandler(bool isPressed) const {
  const PressedChangedHandler handler = handler_;  // it may replace itself while it runs
  if (handler) handler(isPressed);
}

}  // namespace vantorel
