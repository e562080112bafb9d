#pragma once

#include <functional>

namespace vantorel {

/// The one target of the status menu's items; it forwards each choice to an action of the window.
class MenuBarActionHandler {
 public:
  /// The running program's instance, made on first use.
  static MenuBarActionHandler& shared();

  std::function<void()> toggleAction;
  std::function<void()> showWindowAction;
  std::function<void()> quitAction;

  // Each runs its action if one is set. The action may replace itself.
  void toggleMapping() const { run(toggleAction); }
  void showWindow() const { run(showWindowAction); }
  void quit() const { run(quitAction); }

 private:
  static void run(std::function<void()> action) {  // NOLINT(performance-unnecessary-value-param): a copy
    if (action) action();
  }
};

}  // namespace vantorel
