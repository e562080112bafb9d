#include <QApplication>
#include <QThread>
#include <exception>
#include <future>
#include <memory>
#include <optional>
#include <utility>

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

/// Those that the program talks to.
struct Partners {
  std::unique_ptr<RemoteControl> otherStarts;
  std::optional<X11Connections> x11;
};

/// Lets them answer while Qt connects to the display: all take their time. Qt has a connection of its own to
/// the session's bus, which it would open for the screen readers at the first text of the window.
std::future<Partners> beginToConnect(const RemoteControl::Handlers& handlers) {
  QThread* const mainThread = QThread::currentThread();  // Qt takes the first that it meets for that one
  return std::async(std::launch::async, [handlers, mainThread] {
    Partners partners;
    if (isSet("DISPLAY")) partners.x11.emplace();
    const QDBusConnection bus = connectToSessionBus();
    partners.otherStarts = std::make_unique<RemoteControl>(bus, handlers, mainThread);
    if (bus.isConnected()) QDBusConnection::sessionBus();
    return partners;
  });
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
  WindowProgram* running = nullptr;  // calls from outside arrive when it does
  std::future<Partners> connecting = beginToConnect(
      {[&] { running->toggle(); }, [&] { running->showWindow(); }, [] { QCoreApplication::quit(); }});
  QApplication application(argumentCount, arguments);
  useBuiltInFonts();
  HeldKeyFilter heldKeys;
  application.installEventFilter(&heldKeys);
  describeApplication();
  try {
    Partners partners = connecting.get();
    if (partners.otherStarts->state() == RemoteControl::State::anotherIsRunning) return showRunningProgram();
    WindowProgram program(std::move(partners.x11));
    running = &program;
    return program.run();
  } catch (const std::exception& problem) {
    complain(problem.what());
    return 1;
  }
}

}  // namespace vantorel
