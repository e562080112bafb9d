#include "WindowProgram.h"

#include <QApplication>
#include <QScreen>
#include <algorithm>
#include <utility>

#include "Remedies.h"
#include "StandardError.h"

namespace vantorel {

WindowProgram::WindowProgram(std::optional<X11Connections> x11)
    : hasXServer(x11.has_value()),
      machine(std::move(x11),
              [] {
                complain("the connection to the X server is lost");
                // The event loop may not run yet, and would then not end.
                QMetaObject::invokeMethod(
                    qApp, [] { QCoreApplication::exit(1); }, Qt::QueuedConnection);
              }),
      statusBar(machine.mainQueue()),
      application(statusBar),
      workspace({[this] { showRemedy(hasXServer ? remedyForMissingExtension() : remedyForMissingXServer()); },
                 [this](const std::string& address) { showRemedy(remedyForMissingBrowser(address)); }}),
      platform(machine.platform(statusBar, application, workspace)),
      app(platform) {}

int WindowProgram::run() {
  const SignalWatcher signals([](int /*signal*/) { QCoreApplication::quit(); });
  openWindow();
  machine.mainQueue().runWaiting();  // the first window does not wait for the event loop
  menuBarModeObservation = MenuBarManager::shared().isMenuBarMode.observe([this] { menuBarModeChanged(); });
  return QCoreApplication::exec();
}

/// The widgets come behind what the state has posted: their first picture shows what it found out.
void WindowProgram::openWindow() {
  WindowState& state = app.openWindow();
  machine.mainQueue().post([this, &state] { show(state); });
}

void WindowProgram::show(WindowState& state) {
  auto widget = std::make_unique<MainWindow>(
      state, MainWindow::Actions{[this] { openWindow(); }, [this, &state] { closed(state); },
                                 [] { QCoreApplication::quit(); }});
  widget->fitInto(widget->screen()->availableSize());
  windows.push_back({state, std::move(widget)});
  windows.back().widget->show();
  state.appear();
}

/// The last window stays, hidden. Another one ends, but not before the event that closed it is done with.
void WindowProgram::closed(const WindowState& state) {
  machine.mainQueue().post([this, &state] {
    if (windows.size() == 1) return;
    windows.remove_if([&](const Window& open) { return &open.state == &state; });
    app.closeWindow(state);
  });
}

void WindowProgram::toggle() { windows.back().state.toggle(); }

void WindowProgram::showWindow() {
  MainWindow& window = *windows.back().widget;
  window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
  window.show();
  window.raise();
  window.activateWindow();
}

/// In the window that asked for it: the active one, or that opened last.
void WindowProgram::showRemedy(const Remedy& remedy) {
  const auto active = std::find_if(windows.begin(), windows.end(),
                                   [](const Window& window) { return window.widget->isActiveWindow(); });
  const Window& asking = active == windows.end() ? windows.back() : *active;
  asking.widget->showRemedy(remedy);
}

/// "Show Window" leaves the mode; that would help nobody while every window is closed.
void WindowProgram::menuBarModeChanged() {
  if (MenuBarManager::shared().isMenuBarMode) return;
  const bool isAnyVisible = std::any_of(windows.begin(), windows.end(),
                                        [](const Window& window) { return window.widget->isVisible(); });
  if (!isAnyVisible) showWindow();
}

}  // namespace vantorel
