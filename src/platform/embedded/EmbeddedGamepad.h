#pragma once

#include <map>
#include <set>

#include "EmbeddedButton.h"
#include "GameControllers.h"
#include "MainQueue.h"

namespace vantorel {

/// The inputs of an embedded controller: all buttons but the missing ones, and two thumbsticks.
class EmbeddedGamepad : public ExtendedGamepad {
 public:
  /// `missingButtons` are among `leftThumbstick`, `rightThumbstick` and `options`.
  EmbeddedGamepad(MainQueue& queue, const std::set<GamepadButton>& missingButtons);

  /// Null for a missing button.
  EmbeddedButton* find(GamepadButton button);

  void setLeftThumbstick(StickPosition position) { left = position; }
  void setRightThumbstick(StickPosition position) { right = position; }

  /// Lets go of everything and tells nobody.
  void setToNeutral();

  ButtonInput* input(GamepadButton button) override { return find(button); }
  StickPosition leftThumbstick() const override { return left; }
  StickPosition rightThumbstick() const override { return right; }

 private:
  std::map<GamepadButton, EmbeddedButton> buttons;
  StickPosition left;
  StickPosition right;
};

}  // namespace vantorel
