#include "LinuxMachine.h"

#include <utility>

namespace vantorel {

LinuxMachine::LinuxMachine(Injection injection, std::function<void()> onConnectionLost)
    : controllers(queue), settings(SettingsFile::defaultPath()) {
  if (injection == Injection::x11) x11.emplace(queue, std::move(onConnectionLost));
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
