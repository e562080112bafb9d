#include <QCoreApplication>

#include "Commands.h"
#include "QtArguments.h"
#include "StandardError.h"

namespace vantorel {

int askRunningProgram(RemoteCommand command) {
  QtArguments arguments;
  const QCoreApplication application(arguments.count, arguments.values.data());
  const RemoteAnswer answer = send(command);
  switch (answer.outcome) {
    case RemoteOutcome::done:
      return 0;
    case RemoteOutcome::noRunningProgram:
      complain("it is not running");
      break;
    case RemoteOutcome::noSessionBus:
      complain("there is no session bus to reach the running program over");
      break;
    case RemoteOutcome::refused:
      complain(answer.message);
      break;
  }
  return 1;
}

}  // namespace vantorel
