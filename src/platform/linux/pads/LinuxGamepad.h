#pragma once

#include <array>
#include <atomic>
#include <bitset>

#include "GameControllers.h"
#include "LinuxButtonInput.h"

namespace vantorel {

/// The extended profile of a pad. Its states are written by SDL's thread alone and read by any.
class LinuxGamepad final : public ExtendedGamepad {
 public:
  /// The buttons that a pad has, by their values.
  using ButtonSet = std::bitset<gamepadButtonCount>;

  explicit LinuxGamepad(ButtonSet buttons) : buttons_(buttons) {}

  LinuxButtonInput* input(GamepadButton button) override;
  StickPosition leftThumbstick() const override { return left_.load(); }
  StickPosition rightThumbstick() const override { return right_.load(); }

  /// SDL's thread.
  void setLeftThumbstick(StickPosition position) { left_.store(position); }
  void setRightThumbstick(StickPosition position) { right_.store(position); }

  /// Lets every button up and centres the sticks; no handler is called for it. SDL's thread.
  void becomeNeutral();

 private:
  const ButtonSet buttons_;
  std::array<LinuxButtonInput, gamepadButtonCount> inputs_;
  std::atomic<StickPosition> left_ = StickPosition{};
  std::atomic<StickPosition> right_ = StickPosition{};
};

}  // namespace vantorel
