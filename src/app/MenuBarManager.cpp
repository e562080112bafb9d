#include "MenuBarManager.h"

#include <utility>

#include "Shared.h"

namespace vantorel {

MenuBarActionHandler& MenuBarActionHandler::shared() { return Shared<MenuBarActionHandler>::instance(); }

MenuBarManager::MenuBarManager(StatusBar& statusBar, Application& application,
                               MenuBarActionHandler& actionHandler)
    : bar(statusBar), app(application), handler(actionHandler) {}

MenuBarManager& MenuBarManager::shared() { return Shared<MenuBarManager>::instance(); }

void MenuBarManager::setupMenuBar(bool isEnabled, MenuBarActions actions) {
  if (!statusItem) {
    statusItem = bar.makeStatusItem();
    if (statusItem) statusItem->setTemplateIcon("gamecontroller.fill", "Vantorel");
  }
  handler.toggleAction = std::move(actions.toggle);
  handler.showWindowAction = std::move(actions.showWindow);
  handler.quitAction = std::move(actions.quit);
  if (statusItem) statusItem->setMenu(makeMenu(isEnabled));
}

Menu MenuBarManager::makeMenu(bool isEnabled) const {
  const MenuItem separator;
  return {
      {isEnabled ? "✓ Mapping Active" : "✗ Mapping Inactive", false, "", nullptr},
      separator,
      {isEnabled ? "Disable Mapping" : "Enable Mapping", true, "t", [this] { handler.toggleMapping(); }},
      separator,
      {"Show Window", true, "s", [this] { handler.showWindow(); }},
      separator,
      {"Quit", true, "q", [this] { handler.quit(); }},
  };
}

void MenuBarManager::removeMenuBar() { statusItem.reset(); }

void MenuBarManager::hideFromDock() {
  app.setActivationPolicy(ActivationPolicy::accessory);
  isMenuBarMode = true;
}

void MenuBarManager::showInDock() {
  app.setActivationPolicy(ActivationPolicy::regular);
  isMenuBarMode = false;
}

}  // namespace vantorel
