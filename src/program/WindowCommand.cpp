#include <QApplication>
#include <QThread>
#include <exception>
#include <future>
#include <memory>

#include "BuiltInFonts.h"
#include "Commands.h"
#include "HeldKeyFilter.h"
#include "RemoteControl.h"
#include "RetroStyle.h"
#include "SessionBus.h"
#include "StandardError.h"
#include "Typography.h"
#include "WindowProgram.h"

namespace vantorel {
namespace {

bool isSet(const char* variable) { return !qgetenv(variable).isEmpty(); }

/// Whether Qt has something to draw on; it would abort the process otherwise.
bool isDisplayThere() {
  if (isSet("QT_QPA_PLATFORM") || isSet("WAYLAND_DISPLAY")) return true;
  return isSet("DISPLAY");
}

/// Shows the window of the program that runs already.
int showRunningProgram() {
  const RemoteAnswer answer = send(RemoteCommand::show);
  if (answer.outcome == RemoteOutcome::done) return 0;
  complain("it is running already: " + answer.message);
  return 1;
}

/// Lets the session's bus answer while the display does: both take their time.
std::future<QDBusConnection> beginToConnectToBus() {
  QThread::currentThread();  // Qt takes the first thread that it meets for that of the application
  return std::async(std::launch::async, connectToSessionBus);
}

void describeApplication() {
  QApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);  // it would ask the message bus for one
  QApplication::setStyle(new RetroStyle);
  QApplication::setFont(monospaced());
  QApplication::setApplicationName("Vantorel");
  QApplication::setDesktopFileName("vantorel");
  QApplication::setQuitOnLastWindowClosed(false);
}

}  // namespace

int openWindow(int& argumentCount, char** arguments) {
  if (!isDisplayThere()) {
    complain("there is no display; --headless runs without a window, --demo shows what it does");
    return 1;
  }
  std::future<QDBusConnection> bus = beginToConnectToBus();
  QApplication application(argumentCount, arguments);
  useBuiltInFonts();
  HeldKeyFilter heldKeys;
  application.installEventFilter(&heldKeys);
  describeApplication();
  try {
    std::unique_ptr<WindowProgram> program;  // calls from outside arrive when it runs
    const RemoteControl remote(bus.get(), {[&] { program->toggle(); }, [&] { program->showWindow(); },
                                           [] { QCoreApplication::quit(); }});
    if (remote.state() == RemoteControl::State::anotherIsRunning) return showRunningProgram();
    program = std::make_unique<WindowProgram>(isSet("DISPLAY") ? LinuxMachine::Injection::x11
                                                               : LinuxMachine::Injection::none);
    return program->run();
  } catch (const std::exception& problem) {
    complain(problem.what());
    return 1;
  }
}

}  // namespace vantorel
