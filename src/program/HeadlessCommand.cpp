#include <QCoreApplication>
#include <exception>

#include "Commands.h"
#include "LinuxMachine.h"
#include "NoDesktop.h"
#include "QtArguments.h"
#include "RemoteControl.h"
#include "SessionBus.h"
#include "SignalWatcher.h"
#include "StandardError.h"
#include "VantorelApp.h"

namespace vantorel {
namespace {

/// The whole program but the window, from start to the end of its event loop.
int run(const RunHeadless& command) {
  NoDesktop desktop([] { QCoreApplication::quit(); });
  LinuxMachine machine(X11Connections(), [] {
    complain("the connection to the X server is lost");
    QCoreApplication::exit(1);
  });
  Platform platform = machine.platform(desktop, desktop, desktop);

  VantorelApp app(platform);
  WindowState* window = nullptr;
  const RemoteControl remote(connectToSessionBus(),
                             {[&window] { window->toggle(); }, nullptr, [] { QCoreApplication::quit(); }});
  if (remote.state() == RemoteControl::State::anotherIsRunning) {
    complain("it is running already; end that one with --quit");
    return 1;
  }
  const SignalWatcher signals([](int /*signal*/) { QCoreApplication::quit(); });

  window = &app.openWindow();
  window->appear();
  window->setEnabled(command.isMappingOn);
  window->setJoystickEnabled(command.areThumbsticksOn);
  return QCoreApplication::exec();
}

}  // namespace

int runHeadless(const RunHeadless& command) {
  QtArguments arguments;
  const QCoreApplication application(arguments.count, arguments.values.data());
  try {
    return run(command);
  } catch (const std::exception& problem) {
    complain(problem.what());
    return 1;
  }
}

}  // namespace vantorel
