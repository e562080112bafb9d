#pragma once

#include <list>
#include <memory>

#include "DesktopWorkspace.h"
#include "LinuxMachine.h"
#include "MainWindow.h"
#include "QtApplication.h"
#include "QtStatusBar.h"
#include "SignalWatcher.h"
#include "VantorelApp.h"

namespace vantorel {

/// The program with its windows on the desktop. One at a time, while a QApplication exists. Main thread.
///
/// Closing a window does not end the program. The last one is only hidden, so that mapping goes on and a
/// second start can show it; further ones end with their state.
class WindowProgram {
 public:
  /// Without `x11` the session has no X server.
  explicit WindowProgram(std::optional<X11Connections> x11);

  /// Opens the first window and runs until the user quits. The status of the process: 0, or 1 when the X
  /// server went away.
  int run();

  /// Flips the mapping switch of the window opened last.
  void toggle();

  /// Shows the window opened last and brings it forward.
  void showWindow();

 private:
  /// A window and its state.
  struct Window {
    WindowState& state;
    std::unique_ptr<MainWindow> widget;
  };

  void openWindow();
  void show(WindowState& state);
  void closed(const WindowState& state);
  void showRemedy(const Remedy& remedy);
  void menuBarModeChanged();

  const bool hasXServer;
  LinuxMachine machine;
  QtStatusBar statusBar;
  QtApplication application;
  DesktopWorkspace workspace;
  Platform platform;
  VantorelApp app;
  std::list<Window> windows;
  Subscription menuBarModeObservation;
};

}  // namespace vantorel
