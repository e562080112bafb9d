#pragma once

#include <functional>
#include <optional>

#include "LinuxGameControllers.h"
#include "NoInjection.h"
#include "Platform.h"
#include "ProcessOutput.h"
#include "QtMainQueue.h"
#include "QtTimers.h"
#include "SettingsFile.h"
#include "SystemClock.h"
#include "SystemFileManager.h"
#include "X11Injection.h"

namespace vantorel {

/// The real machine as far as it is the same with and without a window.
/// Main thread, once the QCoreApplication is there.
class LinuxMachine {
 public:
  /// Without `connections`, in a session that has no X server, the program can be seen but not act.
  /// `onConnectionLost` is called on the main queue when the server goes away.
  LinuxMachine(std::optional<X11Connections> connections, std::function<void()> onConnectionLost);

  /// The ports of the machine, with those of its desktop.
  Platform platform(StatusBar& statusBar, Application& application, Workspace& workspace);

  QtMainQueue& mainQueue() { return queue; }

 private:
  QtMainQueue queue;
  QtTimers timers;
  SystemClock clock;
  ProcessOutput output;
  SystemFileManager fileManager;
  LinuxGameControllers controllers;  ///< early: it looks for pads on a thread of its own meanwhile
  SettingsFile settings;
  NoInjection noInjection;
  std::optional<X11Injection> x11;
};

}  // namespace vantorel
