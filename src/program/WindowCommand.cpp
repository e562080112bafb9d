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

/// The status of a start that only shows the window of the program that runs already.
int statusOf(const RemoteAnswer& answer) {
  if (answer.outcome == RemoteOutcome::done) return 0;
  complain("it is running already: " + answer.message);
  return 1;
}

/// Those that the program talks to from its start on.
struct Partners {
  std::unique_ptr<RemoteControl> remote;
  std::optional<X11Connections> x11;
};

/// Lets them answer while the main thread works: all take their time. Qt's own connection to the session's
/// bus is opened as well, which would otherwise be done for the screen readers at the first text of the
/// window. The X server has its turn when `qtIsConnected`.
std::future<Partners> beginToConnect(const RemoteControl::Handlers& handlers,
                                     std::future<void> qtIsConnected) {
  // Asked for here, as Qt takes the first thread that it meets for that of the application.
  QThread* const mainThread = QThread::currentThread();
  return std::async(std::launch::async, [handlers, mainThread, display = std::move(qtIsConnected)] {
    const QDBusConnection bus = connectToSessionBus();
    Partners partners{std::make_unique<RemoteControl>(bus, handlers, mainThread), std::nullopt};
    sharedSessionBus();
    display.wait();
    if (isSet("DISPLAY")) partners.x11.emplace();
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
  WindowProgram* running = nullptr;  // calls from outside wait for the event loop, and by then it is set
  const RemoteControl::Handlers handlers{[&] { running->toggle(); }, [&] { running->showWindow(); },
                                         [] { QCoreApplication::quit(); }};
  std::promise<void> qtIsConnected;
  std::future<Partners> connecting = beginToConnect(handlers, qtIsConnected.get_future());
  QApplication application(argumentCount, arguments);
  qtIsConnected.set_value();
  useBuiltInFonts();
  HeldKeyFilter heldKeys;
  application.installEventFilter(&heldKeys);
  describeApplication();
  try {
    Partners partners = connecting.get();
    while (partners.remote->state() == RemoteControl::State::anotherIsRunning) {
      const RemoteAnswer answer = send(RemoteCommand::show);
      if (answer.outcome != RemoteOutcome::noRunningProgram) return statusOf(answer);
      partners.remote =
          std::make_unique<RemoteControl>(connectToSessionBus(), handlers);  // it has just ended
    }
    WindowProgram program(std::move(partners.x11));
    running = &program;
    const std::unique_ptr<RemoteControl> remote = std::move(partners.remote);  // ends before the program does
    return program.run();
  } catch (const std::exception& problem) {
    complain(problem.what());
    return 1;
  }
}

}  // namespace vantorel
