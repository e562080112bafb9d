#pragma once

#include <atomic>

#include "GameControllers.h"

namespace vantorel {

/// One button of a pad: SDL's thread writes its state, any thread reads it, and the main thread owns the
/// handler.
class LinuxButtonInput final : public ButtonInput {
 public:
  bool isPressed() const override { return isPressed_.load(); }
  void setPressedChangedHandler(PressedChangedHandler handler) override;

  /// Sets the state; answers whether that changed it. SDL's thread.
  bool setPressed(bool isPressed) { return isPressed_.exchange(isPressed) != isPressed; }

  /// Calls the handler that is installed now, if any, with `isPressed`. Main thread.
  void callHandler(bool isPressed) const;

 private:
  std::atomic<bool> isPressed_ = false;
  PressedChangedHandler handler_;
};

}  // namespace vantorel
