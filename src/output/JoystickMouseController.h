#pragma once

#include <cstdint>
#include <memory>
#include <mutex>
#include <string>

#include "Platform.h"
#include "Published.h"

namespace vantorel {

/// Turns the thumbsticks of a gamepad into the mouse: the left stick moves the cursor, pressing it clicks,
/// the right stick scrolls.
///
/// While started it samples the gamepad every 16 ms on a queue of its own. All public operations belong to
/// the main thread.
class JoystickMouseController {
 public:
  explicit JoystickMouseController(Platform& platform);
  JoystickMouseController(const JoystickMouseController&) = delete;
  JoystickMouseController& operator=(const JoystickMouseController&) = delete;
  /// Stops, with the line of `stop`.
  ~JoystickMouseController();

  /// The user's switch; sampling does not read it: who sets it calls `start` and `stop`.
  Published<bool> isEnabled{false};
  /// Scroll pixels per tick at full deflection of the right stick.
  Published<float> sensitivity{3.0F};
  /// Points that the cursor moves per tick at full deflection of the left stick.
  Published<float> mouseSensitivity{15.0F};
  /// An axis has to be farther out than this to have an effect, 0 to 1.
  Published<float> deadzone{0.15F};

  /// Samples `gamepad` from the next tick on. It is held weakly.
  void setup(const std::shared_ptr<ExtendedGamepad>& gamepad);

  /// Starts sampling; when it is running already it only says so.
  void start();

  /// Stops sampling. It always writes its line and does no harm twice.
  void stop();

 private:
  void performScrolling();
  void reportMissingGamepad();
  bool moveCursor(StickPosition left);
  void click(ExtendedGamepad& pad);
  void scroll(StickPosition right);
  bool isOutsideDeadzone(StickPosition stick) const;
  std::shared_ptr<ExtendedGamepad> currentGamepad();

  Platform& services;

  std::mutex gamepadMutex;  ///< `setup` runs on the main thread, ticks on their queue
  std::weak_ptr<ExtendedGamepad> gamepad_;

  // Of the ticks alone.
  Clock::TimePoint lastLogTime;
  std::int64_t scrollEventCount = 0;
  bool lastLeftThumbstickPressed = false;

  std::unique_ptr<Timer> updateTimer;  ///< last: destroying it ends the ticks
};

}  // namespace vantorel
