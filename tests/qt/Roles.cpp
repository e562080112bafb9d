#include "Roles.h"

#include <QCoreApplication>
#include <cstdlib>
#include <filesystem>
#include <future>
#include <iostream>
#include <memory>
#include <thread>

#include "ProcessOutput.h"
#include "RemoteCommand.h"
#include "RemoteControl.h"
#include "SessionBus.h"
#include "SettingsFile.h"
#include "SignalWatcher.h"

namespace vantorel::test {
namespace {

using namespace std::chrono_literals;

[[noreturn]] void writeSettings(const std::string& path) {
  SettingsFile settings(path);
  for (bool isFirst = true;; isFirst = false) {
    settings.setData("list", oldList());
    settings.setData("list", newList());
    if (isFirst) std::cout << "written" << std::endl;
  }
}

const char* nameOf(RemoteControl::State state) {
  switch (state) {
    case RemoteControl::State::reachable:
      return "reachable";
    case RemoteControl::State::anotherIsRunning:
      return "another is running";
    case RemoteControl::State::noSessionBus:
      return "no session bus";
  }
  return "";
}

/// Ends with status 0 on a signal. Its answer to "quit" is to end on the spot.
int serveRemote(const std::string& kind) {
  const SignalWatcher signals([](int) { QCoreApplication::quit(); });
  QThread* const mainThread = QThread::currentThread();
  RemoteControl::Handlers handlers;
  handlers.toggle = [mainThread] {
    std::cout << (QThread::currentThread() == mainThread ? "toggled" : "on a wrong thread") << std::endl;
  };
  if (kind != "headless") handlers.show = [] { std::cout << "shown" << std::endl; };
  handlers.quit = [] { std::_Exit(7); };
  const auto make = [&] {
    return std::make_unique<RemoteControl>(connectToSessionBus(), handlers, mainThread);
  };
  const auto control =
      std::async(kind == "from-a-thread" ? std::launch::async : std::launch::deferred, make).get();
  std::cout << nameOf(control->state()) << std::endl;
  return QCoreApplication::exec();
}

int sendRemote(const std::string& command, std::chrono::milliseconds patience) {
  const RemoteAnswer answer = send(command == "toggle" ? RemoteCommand::toggle
                                   : command == "show" ? RemoteCommand::show
                                                       : RemoteCommand::quit,
                                   patience);
  switch (answer.outcome) {
    case RemoteOutcome::done:
      std::cout << "done";
      break;
    case RemoteOutcome::noRunningProgram:
      std::cout << "no running program";
      break;
    case RemoteOutcome::noSessionBus:
      std::cout << "no session bus";
      break;
    case RemoteOutcome::refused:
      std::cout << "refused: ";
      break;
  }
  std::cout << answer.message;
  return 0;
}

int printLines() {
  ProcessOutput output;
  std::vector<std::thread> threads;
  for (const char letter : {'a', 'b', 'c', 'd'}) {
    threads.emplace_back([&output, letter] {
      for (int i = 0; i < 500; ++i) output.writeLine(std::string(300, letter));
    });
  }
  for (std::thread& thread : threads) thread.join();
  return 0;
}

}  // namespace

std::string oldList() { return std::string(3000, 'o'); }

std::string newList() { return std::string(5000, 'n'); }

std::string thisProgram() { return std::filesystem::read_symlink("/proc/self/exe"); }

int runRole(const std::vector<std::string>& arguments) {
  const std::string name = arguments.empty() ? "" : arguments[0];
  const std::string argument = arguments.size() < 2 ? "" : arguments[1];
  if (name == role::writeSettings) writeSettings(argument);
  if (name == role::serveRemote) return serveRemote(argument);
  if (name == role::sendRemote) return sendRemote(argument, 30s);
  if (name == role::sendRemoteInHaste) return sendRemote(argument, 300ms);
  if (name == role::printLines) return printLines();
  return -1;
}

}  // namespace vantorel::test
