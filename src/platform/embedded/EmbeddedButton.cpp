#include "EmbeddedButton.h"

#include <utility>

namespace vantorel {

void EmbeddedButton::change(bool nowPressed) {
  if (nowPressed == pressed) return;
  pressed = nowPressed;
  mainQueue.post([this, nowPressed] {
    const auto current = handler;  // it may replace itself
    if (current) current(nowPressed);
  });
}

void EmbeddedButton::setPressedChangedHandler(PressedChangedHandler newHandler) {
  handler = std::move(newHandler);
}

}  // namespace vantorel
