#include "LinuxMachine.h"

#include <utility>

namespace vantorel {

LinuxMachine::LinuxMachine(std::optional<X11Connections> connections, std::function<void()> onConnectionLost)
    : controllers(queue), settings(SettingsFile::defaultPath()) {
  if (connections) x11.emplace(std::move(*connections), queue, std::move(onConnectionLost));
}

Platform LinuxMachine::platform(StatusBar& statusBar, Application& application, Workspace& workspace) {
  AccessibilityTrust* trust = &noInjection;
  EventPoster* poster = &noInjection;
  HotKeys* hotKeys = &noInjection;
  if (x11) {
    trust = &x11->accessibility();
    poster = &x11->eventPoster();
    hotKeys = &x11->hotKeys();
  }
  return {queue,    timers,    clock,       output,    *trust,   *poster,    controllers,
          *hotKeys, statusBar, application, workspace, settings, fileManager};
}

}  // namespace vantorel
