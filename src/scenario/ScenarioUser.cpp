#include "ScenarioUser.h"

#include <string>
#include <variant>

#include "StateReport.h"

namespace vantorel {

bool ScenarioUser::perform(const UserCommand& command) {
  const bool isDone = std::visit([this](const auto& particular) { return perform(particular); }, command);
  if (platform.application.takeTermination()) endProgram();
  return isDone;
}

bool ScenarioUser::perform(const Launch& /*command*/) {
  if (program) return false;
  program = std::make_unique<VantorelApp>(platform.ports());
  openWindow = &program->openWindow();
  openWindow->appear();
  return true;
}

bool ScenarioUser::perform(const Quit& /*command*/) {
  if (!program) return false;
  endProgram();
  return true;
}

void ScenarioUser::endProgram() {
  platform.statusBar.endProgram();
  openWindow = nullptr;
  program.reset();
}

bool ScenarioUser::performAt(WindowState& /*window*/, const ChooseMenuItem& command) {
  return platform.statusBar.choose(command.title);
}

// A checkbox that is set to the value it has does nothing.

bool ScenarioUser::performAt(WindowState& window, const SetMapping& command) {
  if (window.isEnabled != command.isOn) window.setEnabled(command.isOn);
  return true;
}

bool ScenarioUser::performAt(WindowState& window, const SetJoystick& command) {
  const JoystickMouseController& joystick = window.controllerManager.joystickMouseController;
  if (joystick.isEnabled != command.isOn) window.setJoystickEnabled(command.isOn);
  return true;
}

bool ScenarioUser::performAt(WindowState& window, const SetMenuBar& command) {
  if (window.menuBarManager.isMenuBarMode != command.isOn) window.setMenuBarMode(command.isOn);
  return true;
}

/// The sliders are there only while the thumbstick mouse is on.
bool ScenarioUser::performAt(WindowState& window, const MoveSlider& command) {
  if (!window.controllerManager.joystickMouseController.isEnabled) return false;
  switch (command.slider) {
    case Slider::mouse:
      window.setMouseSensitivity(command.value);
      break;
    case Slider::scroll:
      window.setScrollSensitivity(command.value);
      break;
    case Slider::deadzone:
      window.setDeadzone(command.value);
      break;
  }
  return true;
}

bool ScenarioUser::performAt(WindowState& window, const OpenPicker& command) {
  window.openKeyPicker(command.button);
  return true;
}

bool ScenarioUser::performAt(WindowState& window, const CancelPicker& command) {
  window.openKeyPicker(command.button);
  window.closeKeyPicker();
  return true;
}

bool ScenarioUser::performAt(WindowState& window, const PickKey& command) {
  window.openKeyPicker(command.button);
  window.chooseKey(command.key);
  return true;
}

bool ScenarioUser::performAt(WindowState& window, const ChooseLanguage& command) {
  window.chooseLanguage(command.language);
  return true;
}

bool ScenarioUser::performAt(WindowState& window, const RefreshSystem& /*command*/) {
  window.refreshSystem();
  return true;
}

bool ScenarioUser::performAt(WindowState& window, const StartProbe& /*command*/) {
  window.startProbe();
  return true;
}

/// The button is there only while the permission is missing.
bool ScenarioUser::performAt(WindowState& window, const FixPermission& /*command*/) {
  if (window.controllerManager.hasAccessibilityPermission) return false;
  window.fixPermission();
  return true;
}

bool ScenarioUser::performAt(WindowState& window, const DownloadDriver& /*command*/) {
  window.downloadDriver();
  return true;
}

bool ScenarioUser::performAt(WindowState& window, const ShowState& /*command*/) {
  for (const std::string& line : stateReport(window)) platform.transcript.write("= " + line);
  return true;
}

}  // namespace vantorel
