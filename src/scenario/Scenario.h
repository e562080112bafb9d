#pragma once

#include <string>
#include <vector>

#include "ScenarioCommand.h"
#include "VirtualTime.h"

namespace vantorel {

/// A line of a scenario that does something.
struct ScenarioLine {
  VirtualTime::Duration due;  ///< counted from the start
  std::string text;           ///< as it stands in the file, trimmed
  ScenarioCommand command;
};

/// What happens to the program, and when.
struct Scenario {
  std::vector<ScenarioLine> lines;  ///< in the order of the file, which is the order of their due times
  VirtualTime::Duration end{0};     ///< when the waits after the last line have passed
};

}  // namespace vantorel
