#include <exception>
#include <iostream>
#include <string>
#include <variant>
#include <vector>

#include "CommandLine.h"
#include "Commands.h"
#include "QtTypeRegistry.h"
#include "StandardError.h"

namespace {

using namespace vantorel;

/// Picks what to do for each command.
struct Dispatcher {
  int& argumentCount;
  char** arguments;

  int operator()(OpenWindow /*command*/) const { return openWindow(argumentCount, arguments); }
  int operator()(const PlayScenario& command) const { return playScenario(command); }
  int operator()(const RunHeadless& command) const { return runHeadless(command); }
  int operator()(ListControllers /*command*/) const { return listControllers(); }
  int operator()(RemoteCommand command) const { return askRunningProgram(command); }
  int operator()(const PrintText& command) const {
    std::cout << command.text << std::flush;
    return 0;
  }
  int operator()(const WrongArguments& command) const {
    complain(command.message);
    return 2;
  }
};

}  // namespace

int main(int argc, char** argv) {
  try {
    makeQtTypeRegistry();
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    return std::visit(Dispatcher{argc, argv}, parseCommandLine(arguments));
  } catch (const std::exception& problem) {
    complain(problem.what());
    return 1;
  }
}
