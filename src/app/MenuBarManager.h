#pragma once

#include <functional>
#include <memory>

#include "Application.h"
#include "MenuBarActionHandler.h"
#include "Published.h"
#include "StatusBar.h"

namespace vantorel {

/// What the window lends to the status menu.
struct MenuBarActions {
  std::function<void()> toggle;
  std::function<void()> showWindow;
  std::function<void()> quit;
};

/// The item in the status bar, its menu, and whether the program shows in the task bar. Main thread.
class MenuBarManager {
 public:
  MenuBarManager(StatusBar& statusBar, Application& application, MenuBarActionHandler& actionHandler);

  /// The running program's instance, made on first use.
  static MenuBarManager& shared();

  /// Whether the program is in menu-bar mode.
  Published<bool> isMenuBarMode{false};

  /// Makes the status item if there is none and replaces its menu and the actions behind it. `isEnabled` is
  /// the mapping switch. Without an item, which the desktop may refuse, only the actions are kept.
  void setupMenuBar(bool isEnabled, MenuBarActions actions);

  /// Removes the status item, if there is one.
  void removeMenuBar();

  /// Takes the program out of the task bar; this is the mode.
  void hideFromDock();

  /// Puts it back and leaves the mode.
  void showInDock();

 private:
  Menu makeMenu(bool isEnabled) const;

  StatusBar& bar;
  Application& app;
  MenuBarActionHandler& handler;
  std::unique_ptr<StatusItem> statusItem;
};

}  // namespace vantorel
