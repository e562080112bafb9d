#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "GameControllerManager.h"
#include "HotkeyManager.h"
#include "Lifetime.h"
#include "LocalizationManager.h"
#include "MappingStore.h"
#include "MenuBarManager.h"
#include "Platform.h"
#include "Published.h"
#include "Reactions.h"
#include "SliderRange.h"

namespace vantorel {

/// The state of one window, the objects that it owns, and what the user can do there; the widgets draw it
/// and call it. Main thread.
///
/// Each operation is one action: the reactions to what it changed (the mapping switch, the mappings, the
/// thumbstick checkbox, menu-bar mode) run when it is done.
class WindowState {
 public:
  /// Makes the controller manager, then the store, then asks for the shared managers.
  explicit WindowState(Platform& platform);
  WindowState(const WindowState&) = delete;
  WindowState& operator=(const WindowState&) = delete;
  ~WindowState() = default;

  GameControllerManager controllerManager;
  MappingStore mappingStore;
  LocalizationManager& localization;
  MenuBarManager& menuBarManager;
  HotkeyManager& hotkeyManager;
  /// The button whose key picker is open.
  Published<std::optional<GamepadButton>> selectedGamepadButton{std::nullopt};
  /// The mapping switch.
  Published<bool> isEnabled{false};
  /// Whether the desktop has a status bar, which menu-bar mode needs.
  const Published<bool>& statusBarIsPresent() const { return services.statusBar.isPresent(); }

  /// The window shows: the hot key flips its mapping switch from now on, and in menu-bar mode so does the
  /// status menu.
  void appear();

  void setEnabled(bool enabled);
  /// Flips the mapping switch, as the hot key and the status menu do.
  void toggle();

  void setJoystickEnabled(bool enabled);
  // Each takes the nearest point of its range.
  void setMouseSensitivity(double value);
  void setScrollSensitivity(double value);
  void setDeadzone(double value);

  void setMenuBarMode(bool on);
  void chooseLanguage(AppLanguage language);

  void openKeyPicker(GamepadButton button);
  void closeKeyPicker();
  /// Maps the button of the open key picker to `key` and closes the picker.
  void chooseKey(KeyboardKey key);

  void refreshSystem();
  void startProbe();
  /// Leads the user to where the permission is given.
  void fixPermission();
  void downloadDriver();

 private:
  void watch();
  void perform(const std::function<void()>& action);
  void mappingSwitched(bool enabled);
  void mappingsChanged(const std::vector<ButtonMapping>& mappings);
  void joystickSwitched(bool enabled);
  void menuBarModeSwitched(bool on);
  MenuBarActions menuBarActions();

  Platform& services;
  Reactions reactions;
  bool isPerforming = false;
  Lifetime lifetime;
};

}  // namespace vantorel
