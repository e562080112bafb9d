#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vantorel {

/// Something in a scenario that cannot be read; `what` says it to the author.
struct WrongScenario {
  std::string what;
};

/// `line` without the blanks (spaces, tabs) around it and without a carriage return at its end.
std::string_view trimmed(std::string_view line);

/// The words of a trimmed line, which are separated by blanks.
///
/// A word that begins with a double quote ends at the next one and may hold blanks; in it `\"` and `\\` stand
/// for `"` and `\`. Throws WrongScenario when the quoting is wrong.
std::vector<std::string> scenarioWords(std::string_view line);

}  // namespace vantorel
