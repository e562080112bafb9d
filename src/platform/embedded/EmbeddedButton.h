#pragma once

#include <memory>

#include "GameControllers.h"
#include "MainQueue.h"

namespace vantorel {

/// A button that is pressed by decree. It outlives the blocks on the main queue.
class EmbeddedButton : public ButtonInput {
 public:
  explicit EmbeddedButton(MainQueue& queue) : mainQueue(queue) {}

  /// Sets the state at once. On a change the handler that is installed when the main queue gets to it is
  /// told of this state.
  void change(bool nowPressed);

  /// Sets the state and tells nobody.
  void setToNeutral() { pressed = false; }

  bool isPressed() const override { return pressed; }
  void setPressedChangedHandler(PressedChangedHandler newHandler) override;

 private:
  MainQueue& mainQueue;
  bool pressed = false;
  PressedChangedHandler handler;
};

}  // namespace vantorel
