#pragma once

#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "ScenarioArguments.h"
#include "ScenarioCommand.h"

namespace vantorel {

/// The names of the devices that a scenario has declared so far.
using DeviceNames = std::set<std::string>;

/// The command of the outside world called `name` with these arguments; none if there is no such command.
/// A declaration is entered in `devices`. Throws WrongScenario.
std::optional<WorldCommand> parseWorldCommand(std::string_view name, ScenarioArguments& arguments,
                                              DeviceNames& devices);

}  // namespace vantorel
