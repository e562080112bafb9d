#include "StateReport.h"

#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>

#include "ControllerType.h"
#include "ShortestDecimal.h"

namespace vantorel {
namespace {

std::string text(bool value) { return value ? "true" : "false"; }
std::string text(float value) { return shortestDecimal(value); }
std::string text(std::string_view value) { return std::string(value); }
std::string text(ControllerType value) { return std::string(caseName(value)); }

/// The raw value of a button or key is the name of its case.
template <class Enumeration>
std::string text(const std::optional<Enumeration>& value) {
  return value ? std::string(rawValue(*value)) : "none";
}

class Report {
 public:
  template <class Value>
  void add(const std::string& name, const Value& value) {
    lines.push_back(name + " " + text(value));
  }

  std::vector<std::string> take() { return std::move(lines); }

 private:
  std::vector<std::string> lines;
};

void addController(Report& report, const GameControllerManager& manager) {
  report.add("isControllerConnected", manager.isControllerConnected.get());
  report.add("connectedControllerName", manager.connectedControllerName.get());
  report.add("lastButtonPressed", manager.lastButtonPressed.get());
  report.add("debugMessage", manager.debugMessage.get());
  report.add("lastKeyboardKeyPressed", manager.lastKeyboardKeyPressed.get());
  report.add("hasAccessibilityPermission", manager.hasAccessibilityPermission.get());
  report.add("gamepadType", manager.gamepadType.get());
  report.add("isExtendedGamepad", manager.isExtendedGamepad.get());
  report.add("is360ControllerInstalled", manager.is360ControllerInstalled.get());
  report.add("detectedControllerType", manager.detectedControllerType.get());
}

void addJoystick(Report& report, const JoystickMouseController& joystick) {
  report.add("joystick.isEnabled", joystick.isEnabled.get());
  report.add("joystick.sensitivity", joystick.sensitivity.get());
  report.add("joystick.mouseSensitivity", joystick.mouseSensitivity.get());
  report.add("joystick.deadzone", joystick.deadzone.get());
}

void addLogs(Report& report, const std::vector<std::string>& logs) {
  report.add("debugLogs", std::to_string(logs.size()));
  for (std::size_t index = 0; index < logs.size(); ++index) {
    report.add("debugLogs[" + std::to_string(index) + "]", logs[index]);
  }
}

}  // namespace

std::vector<std::string> stateReport(const WindowState& window) {
  Report report;
  report.add("isEnabled", window.isEnabled.get());
  addController(report, window.controllerManager);
  report.add("currentLanguage", rawValue(window.localization.currentLanguage()));
  report.add("isMenuBarMode", window.menuBarManager.isMenuBarMode.get());
  addJoystick(report, window.controllerManager.joystickMouseController);
  report.add("selectedGamepadButton", window.selectedGamepadButton.get());
  report.add("mappings", window.mappingStore.storedForm());
  addLogs(report, window.controllerManager.debugLogs);
  return report.take();
}

}  // namespace vantorel
