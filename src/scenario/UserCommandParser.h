#pragma once

#include <optional>
#include <string_view>

#include "ScenarioArguments.h"
#include "ScenarioCommand.h"

namespace vantorel {

/// The user's command called `name` with these arguments; none if there is no such command. Throws
/// WrongScenario.
std::optional<UserCommand> parseUserCommand(std::string_view name, ScenarioArguments& arguments);

}  // namespace vantorel
