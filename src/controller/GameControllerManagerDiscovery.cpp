// How the manager finds, identifies and adopts controllers.

#include <array>

#include "GameControllerManager.h"

namespace vantorel {
namespace {

/// The buttons besides A in the order in which their change handlers are installed.
constexpr std::array dispatchedButtons{
    GamepadButton::buttonB,      GamepadButton::buttonX,        GamepadButton::buttonY,
    GamepadButton::leftShoulder, GamepadButton::rightShoulder,  GamepadButton::leftTrigger,
    GamepadButton::rightTrigger, GamepadButton::leftThumbstick, GamepadButton::rightThumbstick,
    GamepadButton::dpadUp,       GamepadButton::dpadDown,       GamepadButton::dpadLeft,
    GamepadButton::dpadRight,    GamepadButton::menu,           GamepadButton::options,
};

}  // namespace

void GameControllerManager::observeControllers() {
  connectObservation = services.gameControllers.observeConnect(lifetime.guard(
      [this](const std::shared_ptr<Controller>& controller) { controllerDidConnect(controller); }));
  disconnectObservation =
      services.gameControllers.observeDisconnect(lifetime.guard([this] { controllerDidDisconnect(); }));
}

void GameControllerManager::checkForControllers() {
  const auto controllers = services.gameControllers.controllers();
  addLog("🔍 检查手柄连接，发现 " + std::to_string(controllers.size()) + " 个设备");
  if (controllers.empty()) {
    addLog("⚠️  未发现已连接的手柄");
    return;
  }
  connectToController(controllers.front());
}

void GameControllerManager::controllerDidConnect(const std::shared_ptr<Controller>& controller) {
  if (!controller) return;
  addLog("🎮 手柄已连接");
  connectToController(controller);
}

/// It does not look at which controller went away, and leaves the profile's facts, the polling and the
/// thumbsticks as they are: a pad that is gone reads as neutral.
void GameControllerManager::controllerDidDisconnect() {
  addLog("🎮 手柄已断开");
  services.mainQueue.post(lifetime.guard([this] {
    isControllerConnected = false;
    connectedControllerName = std::string();
    currentController.reset();
  }));
}

void GameControllerManager::connectToController(const std::shared_ptr<Controller>& controller) {
  currentController = controller;
  const std::string name = controller->vendorName().value_or("未知手柄");
  const ControllerType type = identifyControllerType(*controller);
  publish(detectedControllerType, type);
  services.gameControllers.setShouldMonitorBackgroundEvents(true);
  addLog("🔥 已启用后台事件监听");
  addLog("✅ 成功连接手柄: " + name);
  addLog("📊 产品类别: " + controller->productCategory());
  addLog("🎮 识别类型: " + std::string(displayText(type)));
  services.mainQueue.post(lifetime.guard([this, controller, name] {
    isControllerConnected = true;
    connectedControllerName = name;
    gamepadType = controller->productCategory();
  }));

  const auto gamepad = controller->extendedGamepad();
  reportProfile(*controller, gamepad != nullptr);
  if (gamepad) {
    addLog("🎮 配置扩展手柄按键监听");
    setupExtendedGamepadHandlers(gamepad);
  } else {
    addLog("❌ 无法配置按键监听：不是扩展手柄");
    addLog("💡 提示：某些手柄可能需要特殊驱动或设置");
  }
}

void GameControllerManager::reportProfile(const Controller& controller, bool isExtended) {
  if (isExtended) {
    addLog("✅ 检测到扩展手柄");
  } else if (controller.hasMicroGamepad()) {
    addLog("⚠️  检测到微型手柄（功能受限）");
  } else {
    addLog("⚠️  检测到标准手柄（功能受限）");
  }
  publish(isExtendedGamepad, isExtended);
}

void GameControllerManager::setupExtendedGamepadHandlers(const std::shared_ptr<ExtendedGamepad>& gamepad) {
  addLog("🔧 开始设置按键处理器...");
  joystickMouseController.setup(gamepad);
  addLog("🖱️  摇杆鼠标控制器已配置");
  pollingTimer.reset();  // first of all: the states belong to its queue while it runs
  for (const GamepadButton button : allGamepadButtons()) lastButtonStates[button] = false;
  startPolling(gamepad);
  installChangeHandlers(*gamepad);
}

/// A is never dispatched from its change handler: its key presses come from the polling alone.
void GameControllerManager::installChangeHandlers(ExtendedGamepad& gamepad) {
  gamepad.input(GamepadButton::buttonA)->setPressedChangedHandler(lifetime.guard([this](bool isPressed) {
    if (isPressed) addLog("🎮 [事件] A按钮按下");
  }));
  addLog("✅ A按钮处理器已设置");
  for (const GamepadButton button : dispatchedButtons) {
    ButtonInput* const input = gamepad.input(button);
    if (input == nullptr) continue;
    input->setPressedChangedHandler(lifetime.guard([this, button](bool isPressed) {
      if (isPressed) handleButtonPress(button);
    }));
  }
}

}  // namespace vantorel
