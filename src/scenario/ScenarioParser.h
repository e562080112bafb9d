#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>

#include "Scenario.h"

namespace vantorel {

/// The first line of a scenario that cannot be understood.
struct ScenarioError {
  std::string fileName;
  std::size_t lineNumber;  ///< counted from 1
  std::string what;

  /// The error as compilers write it: `FILE:LINE: what is wrong`.
  std::string message() const { return fileName + ":" + std::to_string(lineNumber) + ": " + what; }
};

/// Reads the whole of a scenario's `text`, UTF-8 with one command a line. `fileName` is only reported.
std::variant<Scenario, ScenarioError> parseScenario(std::string_view text, const std::string& fileName);

}  // namespace vantorel
