#include "ScenarioParser.h"

#include <chrono>
#include <utility>

#include "ScenarioArguments.h"
#include "ScenarioNumbers.h"
#include "ScenarioWords.h"
#include "UserCommandParser.h"
#include "Utf8.h"
#include "WorldCommandParser.h"

namespace vantorel {
namespace {

VirtualTime::Duration parseWait(ScenarioArguments& arguments, VirtualTime::Duration waitedBefore) {
  constexpr VirtualTime::Duration longest = std::chrono::years(100);
  const std::string& word = arguments.take("a time");
  const auto time = timeLength(word);
  if (!time) throw WrongScenario{quoted(word) + " is not a time, as 50ms or 0.5s"};
  if (waitedBefore + *time > longest) throw WrongScenario{"the scenario is longer than a hundred years"};
  return *time;
}

ScenarioCommand parseCommand(std::string_view name, ScenarioArguments& arguments, DeviceNames& devices) {
  if (auto command = parseWorldCommand(name, arguments, devices)) return *std::move(command);
  if (auto command = parseUserCommand(name, arguments)) return *std::move(command);
  throw WrongScenario{"there is no command " + quoted(name)};
}

/// Adds what the trimmed `line` says to `scenario`.
void parseLine(std::string_view line, Scenario& scenario, DeviceNames& devices) {
  if (!isUtf8(line)) throw WrongScenario{"the line is not UTF-8"};
  ScenarioArguments arguments(scenarioWords(line));
  const std::string& name = arguments.take("a command");
  if (name == "wait") {
    scenario.end += parseWait(arguments, scenario.end);
  } else {
    scenario.lines.push_back({scenario.end, std::string(line), parseCommand(name, arguments, devices)});
  }
  arguments.finish();
}

/// Takes the first line off `text`, without its newline.
std::string_view takeLine(std::string_view& text) {
  const std::string_view line = text.substr(0, text.find('\n'));
  text.remove_prefix(line.size() < text.size() ? line.size() + 1 : line.size());
  return line;
}

}  // namespace

std::variant<Scenario, ScenarioError> parseScenario(std::string_view text, const std::string& fileName) {
  Scenario scenario;
  DeviceNames devices;
  std::size_t lineNumber = 0;
  while (!text.empty()) {
    ++lineNumber;
    const std::string_view line = trimmed(takeLine(text));
    if (line.empty() || line.starts_with('#')) continue;
    try {
      parseLine(line, scenario, devices);
    } catch (const WrongScenario& wrong) {
      return ScenarioError{fileName, lineNumber, wrong.what};
    }
  }
  return scenario;
}

}  // namespace vantorel
