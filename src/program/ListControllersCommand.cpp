#include <QCoreApplication>
#include <iostream>

#include "Commands.h"
#include "ControllerType.h"
#include "LinuxController.h"
#include "LinuxGameControllers.h"
#include "QtArguments.h"
#include "QtMainQueue.h"

namespace vantorel {
namespace {

std::string orDash(const std::string& text) { return text.empty() ? "-" : text; }

void print(LinuxController& controller) {
  const ControllerFacts facts = controller.facts();
  std::cout << "name: " << orDash(facts.name) << "  category: " << orDash(facts.category)
            << "  family: " << displayText(identifyControllerType(controller))
            << "  profile: " << facts.profile << "  node: " << orDash(facts.node) << '\n';
}

}  // namespace

int listControllers() {
  QtArguments arguments;
  const QCoreApplication application(arguments.count, arguments.values.data());
  QtMainQueue queue;
  LinuxGameControllers service(queue);
  const auto& controllers = service.linuxControllers();
  for (const auto& controller : controllers) print(*controller);
  if (controllers.empty()) std::cerr << "No controller is connected.\n";
  return 0;
}

}  // namespace vantorel
