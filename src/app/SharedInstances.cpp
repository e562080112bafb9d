#include "SharedInstances.h"

#include <memory>

#include "HotkeyManager.h"
#include "KeyboardSimulator.h"
#include "LocalizationManager.h"
#include "MenuBarManager.h"
#include "Shared.h"

namespace vantorel {

SharedInstances::SharedInstances(Platform& platform) {
  Shared<KeyboardSimulator>::install([&platform] {
    return std::make_unique<KeyboardSimulator>(
        platform, [] { return LocalizationManager::shared().currentLanguage().get(); });
  });
  Shared<LocalizationManager>::install(
      [&platform] { return std::make_unique<LocalizationManager>(platform.userDefaults); });
  Shared<MenuBarActionHandler>::install([] { return std::make_unique<MenuBarActionHandler>(); });
  Shared<MenuBarManager>::install([&platform] {
    return std::make_unique<MenuBarManager>(platform.statusBar, platform.application,
                                            MenuBarActionHandler::shared());
  });
  Shared<HotkeyManager>::install(
      [&platform] { return std::make_unique<HotkeyManager>(platform.hotKeys, platform.standardOutput); });
}

SharedInstances::~SharedInstances() {
  HotkeyManager::shared().leaveToSystem();
  Shared<HotkeyManager>::reset();
  Shared<MenuBarManager>::reset();
  Shared<MenuBarActionHandler>::reset();
  Shared<LocalizationManager>::reset();
  Shared<KeyboardSimulator>::reset();
}

}  // namespace vantorel
