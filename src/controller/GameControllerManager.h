#pragma once

#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "ButtonMapping.h"
#include "ButtonTable.h"
#include "ControllerType.h"
#include "CurrentLanguage.h"
#include "JoystickMouseController.h"
#include "KeyboardSimulator.h"
#include "Lifetime.h"
#include "Platform.h"
#include "Published.h"

namespace vantorel {

/// Everything about the connected game controller: finds and adopts it, turns its buttons into keys by a
/// table, and keeps the debug log.
///
/// It has no switch of its own: mapping is off while the table is empty. All public operations belong to the
/// main thread, and so do all assignments of published values.
class GameControllerManager {
 public:
  /// Checks the environment and adopts the first connected controller.
  GameControllerManager(Platform& platform, KeyboardSimulator& keyboardSimulator,
                        CurrentLanguage currentLanguage);
  GameControllerManager(const GameControllerManager&) = delete;
  GameControllerManager& operator=(const GameControllerManager&) = delete;
  ~GameControllerManager() = default;

  Published<bool> isControllerConnected{false};
  /// The adopted controller's vendor name, or "未知手柄" when it has none.
  Published<std::string> connectedControllerName{""};
  /// The latest button that reached dispatch.
  Published<std::optional<GamepadButton>> lastButtonPressed{std::nullopt};
  /// One line about the latest dispatch.
  Published<std::string> debugMessage{""};
  /// The latest key that was sent.
  Published<std::optional<KeyboardKey>> lastKeyboardKeyPressed{std::nullopt};
  /// The newest 20 lines of the log, the newest first.
  Published<std::vector<std::string>> debugLogs{{}};
  /// The answer to the latest question for the permission to post events.
  Published<bool> hasAccessibilityPermission{false};
  /// The adopted controller's product category.
  Published<std::string> gamepadType{"未知"};
  Published<bool> isExtendedGamepad{false};
  JoystickMouseController joystickMouseController;
  Published<bool> is360ControllerInstalled{false};
  Published<ControllerType> detectedControllerType{ControllerType::unknown};

  /// Replaces the table from buttons to keys; of two records for one button the later one holds.
  void updateMappings(const std::vector<ButtonMapping>& mappings);

  /// Reports for ten seconds the first of five buttons to be pressed.
  void startRealtimeMonitoring();

  /// Looks for the driver that Xbox pads need on macOS.
  void check360ControllerDriver();

  /// Asks for the permission to post events, without a prompt.
  void checkAccessibilityPermission();

 private:
  // Log and dispatch (GameControllerManager.cpp).
  void addLog(const std::string& text);
  void handleButtonPress(GamepadButton button);
  void refuseUnmapped(const std::string& buttonName);
  void sendKey(const std::string& buttonName, KeyboardKey key);
  std::string nameOf(GamepadButton button) const;
  std::string nameOf(KeyboardKey key) const;
  template <class Value>
  void publish(Published<Value>& property, Value value);

  // Discovery (GameControllerManagerDiscovery.cpp).
  void observeControllers();
  void checkForControllers();
  void controllerDidConnect(const std::shared_ptr<Controller>& controller);
  void controllerDidDisconnect();
  void connectToController(const std::shared_ptr<Controller>& controller);
  void reportProfile(const Controller& controller, bool isExtended);
  void setupExtendedGamepadHandlers(const std::shared_ptr<ExtendedGamepad>& gamepad);
  void installChangeHandlers(ExtendedGamepad& gamepad);

  // Polling and the monitor (GameControllerManagerPolling.cpp).
  void startPolling(const std::shared_ptr<ExtendedGamepad>& gamepad);
  void pollGamepadState(ExtendedGamepad& gamepad);
  void checkButton(GamepadButton button, bool isPressed);
  void monitorTick(ExtendedGamepad& gamepad, int tick);

  Platform& services;
  KeyboardSimulator& simulator;
  CurrentLanguage language;

  std::shared_ptr<Controller> currentController;
  ButtonTable buttonMappings;
  /// Written by the main thread before polling starts, by the polling queue afterwards.
  std::unordered_map<GamepadButton, bool> lastButtonStates;
  std::unique_ptr<Timer> monitoringTimer;
  Subscription connectObservation;
  Subscription disconnectObservation;
  Lifetime lifetime;
  std::unique_ptr<Timer> pollingTimer;  ///< last: destroying it ends the polling before anything else goes
};

template <class Value>
void GameControllerManager::publish(Published<Value>& property, Value value) {
  services.mainQueue.post(lifetime.guard([&property, value = std::move(value)] { property = value; }));
}

}  // namespace vantorel
