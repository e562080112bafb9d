// How the manager samples the adopted gamepad, and its realtime monitor.

#include <array>
#include <chrono>

#include "GameControllerManager.h"

namespace vantorel {
namespace {

constexpr std::chrono::milliseconds pollingInterval{50};
constexpr std::chrono::milliseconds monitorInterval{100};
/// One more than the ten seconds that the message names.
constexpr int lastMonitorTick = 101;

/// The order in which one sample looks at the buttons.
constexpr std::array sampledButtons{
    GamepadButton::buttonA,     GamepadButton::buttonB,        GamepadButton::buttonX,
    GamepadButton::buttonY,     GamepadButton::leftShoulder,   GamepadButton::rightShoulder,
    GamepadButton::leftTrigger, GamepadButton::rightTrigger,   GamepadButton::dpadUp,
    GamepadButton::dpadDown,    GamepadButton::dpadLeft,       GamepadButton::dpadRight,
    GamepadButton::menu,        GamepadButton::leftThumbstick, GamepadButton::rightThumbstick,
    GamepadButton::options,
};

struct MonitoredButton {
  GamepadButton button;
  const char* report;
};

constexpr std::array<MonitoredButton, 5> monitoredButtons{{
    {GamepadButton::buttonA, "🔴 检测到A按钮按下！"},
    {GamepadButton::buttonB, "🔴 检测到B按钮按下！"},
    {GamepadButton::buttonX, "🔴 检测到X按钮按下！"},
    {GamepadButton::buttonY, "🔴 检测到Y按钮按下！"},
    {GamepadButton::dpadUp, "🔴 检测到方向键上按下！"},
}};

}  // namespace

void GameControllerManager::startPolling(const std::shared_ptr<ExtendedGamepad>& gamepad) {
  addLog("🔄 启动轻量级轮询模式（后台队列，50ms间隔）");
  pollingTimer = services.timers.startQueueTimer("org.vantorel.polling", pollingInterval,
                                                 [this, gamepad] { pollGamepadState(*gamepad); });
  addLog("✅ 轮询已启动（后台队列，降低 CPU 占用）");
}

void GameControllerManager::pollGamepadState(ExtendedGamepad& gamepad) {
  if (buttonMappings.isEmpty()) return;
  for (const GamepadButton button : sampledButtons) {
    if (const ButtonInput* const input = gamepad.input(button)) checkButton(button, input->isPressed());
  }
}

void GameControllerManager::checkButton(GamepadButton button, bool isPressed) {
  bool& lastState = lastButtonStates[button];
  const bool isRisingEdge = isPressed && !lastState;
  if (isRisingEdge && buttonMappings.contains(button)) {
    services.mainQueue.post(lifetime.guard([this, button] {
      addLog("🎮 " + nameOf(button) + " 按下");
      handleButtonPress(button);
    }));
  }
  lastState = isPressed;
}

void GameControllerManager::startRealtimeMonitoring() {
  addLog("🎯 开始实时监测模式...");
  addLog("📍 请按下任意手柄按钮...");
  monitoringTimer.reset();
  const auto gamepad = currentController ? currentController->extendedGamepad() : nullptr;
  if (!gamepad) {
    addLog("❌ 无法获取扩展手柄");
    return;
  }
  monitoringTimer = services.timers.startMainTimer(
      monitorInterval, [this, gamepad, tick = 0]() mutable { monitorTick(*gamepad, ++tick); });
}

void GameControllerManager::monitorTick(ExtendedGamepad& gamepad, int tick) {
  for (const MonitoredButton& monitored : monitoredButtons) {
    if (!gamepad.input(monitored.button)->isPressed()) continue;
    addLog(monitored.report);
    monitoringTimer.reset();
    return;
  }
  if (tick < lastMonitorTick) return;
  addLog("⏱️ 监测超时（10秒），未检测到按键");
  monitoringTimer.reset();
}

}  // namespace vantorel
