#include "JoystickMouseController.h"

#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>

#include "ShortestDecimal.h"

namespace vantorel {
namespace {

constexpr std::chrono::milliseconds tickInterval{16};
constexpr std::chrono::seconds missingGamepadInterval{2};
constexpr std::int64_t ticksPerValueLine = 30;

std::string twoDecimals(float value) {
  std::array<char, 64> text{};
  const int length = std::snprintf(text.data(), text.size(), "%.2f", static_cast<double>(value));
  return {text.data(), static_cast<std::size_t>(length)};
}

}  // namespace

JoystickMouseController::JoystickMouseController(Platform& platform)
    : services(platform), lastLogTime(platform.clock.now()) {}

JoystickMouseController::~JoystickMouseController() { stop(); }

void JoystickMouseController::setup(const std::shared_ptr<ExtendedGamepad>& gamepad) {
  const std::lock_guard lock(gamepadMutex);
  gamepad_ = gamepad;
}

void JoystickMouseController::start() {
  if (updateTimer) {
    services.standardOutput.writeLine("⚠️ 摇杆滚动已经在运行");
    return;
  }
  services.standardOutput.writeLine("✅ 启动摇杆触摸屏滚动控制");
  services.standardOutput.writeLine("   灵敏度: " + shortestDecimalWithFraction(sensitivity) +
                                    ", 死区: " + shortestDecimalWithFraction(deadzone));
  updateTimer =
      services.timers.startQueueTimer("org.vantorel.joystick", tickInterval, [this] { performScrolling(); });
}

void JoystickMouseController::stop() {
  services.standardOutput.writeLine("🛑 停止摇杆触摸屏滚动控制");
  updateTimer.reset();
}

void JoystickMouseController::performScrolling() {
  const auto pad = currentGamepad();
  if (!pad) {
    reportMissingGamepad();
    return;
  }
  if (!moveCursor(pad->leftThumbstick())) return;
  click(*pad);
  scroll(pad->rightThumbstick());
}

void JoystickMouseController::reportMissingGamepad() {
  const auto now = services.clock.now();
  if (now - lastLogTime <= missingGamepadInterval) return;
  services.standardOutput.writeLine("⚠️ 摇杆控制: 没有手柄连接");
  lastLogTime = now;
}

/// Whether the tick goes on: it ends when the cursor cannot be found.
bool JoystickMouseController::moveCursor(StickPosition left) {
  if (!isOutsideDeadzone(left)) return true;
  const auto location = services.eventPoster.cursorLocation();
  if (!location) return false;
  // Single precision on purpose: the products are widened only when they are added.
  const float deltaX = left.x * mouseSensitivity;
  const float deltaY = mouseSensitivity * left.y;
  const Point target{location->x + static_cast<double>(deltaX), location->y - static_cast<double>(deltaY)};
  if (const auto event = services.eventPoster.makeMouseEvent(MouseEventType::moved, target)) {
    services.eventPoster.post(*event);
  }
  return true;
}

void JoystickMouseController::click(ExtendedGamepad& pad) {
  const ButtonInput* const button = pad.input(GamepadButton::leftThumbstick);
  if (button == nullptr) return;
  const bool isPressed = button->isPressed();
  if (isPressed && !lastLeftThumbstickPressed) {
    EventPoster& poster = services.eventPoster;
    if (const auto location = poster.cursorLocation()) {
      if (const auto down = poster.makeMouseEvent(MouseEventType::leftDown, *location)) poster.post(*down);
      if (const auto up = poster.makeMouseEvent(MouseEventType::leftUp, *location)) poster.post(*up);
      services.standardOutput.writeLine("🖱️ 左摇杆按下: 产生点击事件");
    }
  }
  lastLeftThumbstickPressed = isPressed;
}

void JoystickMouseController::scroll(StickPosition right) {
  if (!isOutsideDeadzone(right)) return;
  ++scrollEventCount;
  if (scrollEventCount % ticksPerValueLine == 1) {
    services.standardOutput.writeLine("🕹️ 右摇杆值: X=" + twoDecimals(right.x) +
                                      ", Y=" + twoDecimals(right.y));
  }
  const float vertical = right.y * sensitivity;
  const float horizontal = right.x * sensitivity;
  auto event = services.eventPoster.makeScrollEvent(static_cast<std::int32_t>(vertical),
                                                    static_cast<std::int32_t>(horizontal));
  if (!event) return;
  event->isContinuous = true;
  event->pointDeltaAxis1 = static_cast<std::int64_t>(vertical);
  event->pointDeltaAxis2 = static_cast<std::int64_t>(horizontal);
  services.eventPoster.post(*event);
}

/// Each axis counts on its own; one inside the dead zone is not zeroed when the other is outside.
bool JoystickMouseController::isOutsideDeadzone(StickPosition stick) const {
  const float limit = deadzone;
  return std::fabs(stick.x) > limit || std::fabs(stick.y) > limit;
}

std::shared_ptr<ExtendedGamepad> JoystickMouseController::currentGamepad() {
  const std::lock_guard lock(gamepadMutex);
  return gamepad_.lock();
}

}  // namespace vantorel
