#include "GameControllerManager.h"

#include <utility>

namespace vantorel {
namespace {

constexpr std::size_t logCapacity = 20;

}  // namespace

GameControllerManager::GameControllerManager(Platform& platform, KeyboardSimulator& keyboardSimulator,
                                             CurrentLanguage currentLanguage)
    : joystickMouseController(platform),
      services(platform),
      simulator(keyboardSimulator),
      language(std::move(currentLanguage)) {
  addLog("🚀 应用启动");
  check360ControllerDriver();
  checkAccessibilityPermission();
  observeControllers();
  checkForControllers();
}

void GameControllerManager::updateMappings(const std::vector<ButtonMapping>& mappings) {
  ButtonTable::Entries entries;
  for (const ButtonMapping& mapping : mappings) {
    entries.insert_or_assign(mapping.gamepadButton, mapping.keyboardKey);
  }
  buttonMappings.replace(std::move(entries));
  if (mappings.empty()) {
    addLog("🔄 已清空按键映射");
  } else {
    addLog("🔄 已更新 " + std::to_string(mappings.size()) + " 个按键映射");
  }
}

/// Any thread. The line is printed at once and enters the published log on the main thread.
void GameControllerManager::addLog(const std::string& text) {
  const std::string line = "[" + services.clock.localTime() + "] " + text;
  services.standardOutput.writeLine(line);
  services.mainQueue.post(lifetime.guard([this, line] {
    std::vector<std::string> lines{line};
    for (const std::string& earlier : debugLogs.get()) {
      if (lines.size() < logCapacity) lines.push_back(earlier);
    }
    debugLogs = std::move(lines);
  }));
}

void GameControllerManager::handleButtonPress(GamepadButton button) {
  const std::string buttonName = nameOf(button);
  addLog("🎮 按下: " + buttonName);
  publish(lastButtonPressed, std::optional(button));
  if (const auto key = buttonMappings.key(button)) {
    sendKey(buttonName, *key);
  } else {
    refuseUnmapped(buttonName);
  }
}

void GameControllerManager::refuseUnmapped(const std::string& buttonName) {
  const std::string message = "⚠️  " + buttonName + " 未设置映射";
  addLog(message);
  publish(debugMessage, message);
}

void GameControllerManager::sendKey(const std::string& buttonName, KeyboardKey key) {
  const std::string pair = buttonName + " → " + nameOf(key);
  addLog("⌨️  映射: " + pair);
  const bool trusted = services.accessibility.isTrustedWithPrompt();
  publish(hasAccessibilityPermission, trusted);
  if (!trusted) {
    addLog("❌ 权限状态: 未授权，无法发送按键");
    publish(debugMessage, std::string("❌ 需要辅助功能权限"));
    return;
  }
  addLog("⌨️  发送: " + pair);
  simulator.pressKey(key);
  publish(lastKeyboardKeyPressed, std::optional(key));
  publish(debugMessage, "✅ " + pair);
}

std::string GameControllerManager::nameOf(GamepadButton button) const {
  return std::string(displayName(button, language()));
}

std::string GameControllerManager::nameOf(KeyboardKey key) const {
  return std::string(displayName(key, language()));
}

}  // namespace vantorel
