#include "WindowState.h"

#include <utility>

namespace vantorel {
namespace {

constexpr const char* accessibilitySettingsAddress =
    "x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility";
constexpr const char* driverAddress = "https://github.com/360Controller/360Controller/releases/tag/v0.16.11";

}  // namespace

WindowState::WindowState(Platform& platform)
    : controllerManager(platform, KeyboardSimulator::shared(),
                        [] { return LocalizationManager::shared().currentLanguage().get(); }),
      mappingStore(platform.userDefaults),
      localization(LocalizationManager::shared()),
      menuBarManager(MenuBarManager::shared()),
      hotkeyManager(HotkeyManager::shared()),
      services(platform) {
  watch();
}

void WindowState::watch() {
  reactions.onChange<bool>([this] { return isEnabled.get(); },
                           [this](bool enabled) { mappingSwitched(enabled); });
  reactions.onChange<std::vector<ButtonMapping>>(
      [this] { return mappingStore.mappings.get(); },
      [this](const std::vector<ButtonMapping>& mappings) { mappingsChanged(mappings); });
  reactions.onChange<bool>([this] { return controllerManager.joystickMouseController.isEnabled.get(); },
                           [this](bool enabled) { joystickSwitched(enabled); });
  reactions.onChange<bool>([this] { return menuBarManager.isMenuBarMode.get(); },
                           [this](bool on) { menuBarModeSwitched(on); });
}

void WindowState::perform(const std::function<void()>& action) {
  const bool isNested = std::exchange(isPerforming, true);
  if (!isNested) reactions.begin();  // another window may have changed what all share, and reacted to it
  action();
  if (isNested) return;
  reactions.settle();
  isPerforming = false;
}

void WindowState::appear() {
  hotkeyManager.registerHotkey(lifetime.guard([this] { toggle(); }));
  if (menuBarManager.isMenuBarMode) menuBarManager.setupMenuBar(isEnabled, menuBarActions());
}

void WindowState::setEnabled(bool enabled) {
  perform([&] { isEnabled = enabled; });
}

void WindowState::toggle() { setEnabled(!isEnabled); }

void WindowState::setJoystickEnabled(bool enabled) {
  perform([&] { controllerManager.joystickMouseController.isEnabled = enabled; });
}

void WindowState::setMouseSensitivity(double value) {
  perform([&] {
    controllerManager.joystickMouseController.mouseSensitivity = mouseSensitivityRange.snapped(value);
  });
}

void WindowState::setScrollSensitivity(double value) {
  perform(
      [&] { controllerManager.joystickMouseController.sensitivity = scrollSensitivityRange.snapped(value); });
}

void WindowState::setDeadzone(double value) {
  perform([&] { controllerManager.joystickMouseController.deadzone = deadzoneRange.snapped(value); });
}

void WindowState::setMenuBarMode(bool on) {
  perform([&] { menuBarManager.isMenuBarMode = on; });
}

void WindowState::chooseLanguage(AppLanguage language) {
  perform([&] { localization.setCurrentLanguage(language); });
}

void WindowState::openKeyPicker(GamepadButton button) {
  perform([&] { selectedGamepadButton = std::optional(button); });
}

void WindowState::closeKeyPicker() {
  perform([&] { selectedGamepadButton = std::nullopt; });
}

void WindowState::chooseKey(KeyboardKey key) {
  const auto button = selectedGamepadButton.get();
  if (!button) return;
  perform([&] {
    mappingStore.update(*button, key);
    controllerManager.updateMappings(mappingStore.mappings);  // whether mapping is on or off
    selectedGamepadButton = std::nullopt;
  });
}

void WindowState::refreshSystem() {
  perform([&] { controllerManager.checkAccessibilityPermission(); });
}

void WindowState::startProbe() {
  perform([&] { controllerManager.startRealtimeMonitoring(); });
}

void WindowState::fixPermission() { services.workspace.open(accessibilitySettingsAddress); }

void WindowState::downloadDriver() { services.workspace.open(driverAddress); }

void WindowState::mappingSwitched(bool enabled) {
  if (enabled) {
    services.accessibility.isTrustedWithPrompt();
    controllerManager.updateMappings(mappingStore.mappings);
  } else {
    controllerManager.updateMappings({});
  }
  if (menuBarManager.isMenuBarMode) menuBarManager.setupMenuBar(enabled, menuBarActions());
}

void WindowState::mappingsChanged(const std::vector<ButtonMapping>& mappings) {
  if (isEnabled) controllerManager.updateMappings(mappings);
}

void WindowState::joystickSwitched(bool enabled) {
  if (enabled) {
    controllerManager.joystickMouseController.start();
  } else {
    controllerManager.joystickMouseController.stop();
  }
}

void WindowState::menuBarModeSwitched(bool on) {
  if (on) {
    menuBarManager.setupMenuBar(isEnabled, menuBarActions());
    menuBarManager.hideFromDock();
  } else {
    menuBarManager.showInDock();
    menuBarManager.removeMenuBar();
  }
}

MenuBarActions WindowState::menuBarActions() {
  return {
      lifetime.guard([this] { toggle(); }),
      lifetime.guard([this] { perform([this] { menuBarManager.showInDock(); }); }),
      lifetime.guard([this] { services.application.terminate(); }),
  };
}

}  // namespace vantorel
