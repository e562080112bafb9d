#pragma once

namespace vantorel {

/// Makes a button of an analogue trigger: pressed from a quarter of its travel, released below a fifth, so
/// that a finger that rests near either point does not make it flutter.
class TriggerTravel {
 public:
  /// Whether the trigger counts as pressed now that it stands at `travel`, 0 to 32767.
  bool update(int travel) {
    isPressed_ = travel >= (isPressed_ ? releasePoint : pressPoint);
    return isPressed_;
  }

 private:
  static constexpr int pressPoint = 8192;
  static constexpr int releasePoint = 6554;
  bool isPressed_ = false;
};

}  // namespace vantorel
