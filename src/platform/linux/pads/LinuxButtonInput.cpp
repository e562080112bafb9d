#include "LinuxButtonInput.h"

#include <utility>

namespace vantorel {

void LinuxButtonInput::setPressedChangedHandler(PressedChangedHandler handler) {
  handler_ = std::move(handler);
}

void LinuxButtonInput::callHandler(bool isPressed) const {
  const PressedChangedHandler handler = handler_;  // it may replace itself while it runs
  if (handler) handler(isPressed);
}

}  // namespace vantorel
