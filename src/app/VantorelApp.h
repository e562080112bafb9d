#pragma once

#include <memory>
#include <vector>

#include "Platform.h"
#include "SharedInstances.h"
#include "WindowState.h"

namespace vantorel {

/// The running program: the shared managers and the state of each window, from start to end. Main thread.
class VantorelApp {
 public:
  /// `platform` outlives the program.
  explicit VantorelApp(Platform& platform) : services(platform), sharedInstances(platform) {}

  /// The state of a new window, which has yet to `appear`. It is valid until the window is closed.
  WindowState& openWindow();

  /// Ends `window` and what it owns. The hot key and the status menu go to the window opened last among the
  /// others.
  void closeWindow(const WindowState& window);

 private:
  Platform& services;
  SharedInstances sharedInstances;
  std::vector<std::unique_ptr<WindowState>> windows;
};

}  // namespace vantorel
