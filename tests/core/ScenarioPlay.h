#pragma once

#include <algorithm>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "EmbeddedRecord.h"
#include "ScenarioParser.h"
#include "ScenarioPlayer.h"

namespace vantorel {

/// Plays the scenario `text` to its end and returns the transcript. Throws when a line is wrong.
inline EmbeddedRecord played(std::string_view text) {
  auto parsed = parseScenario(text, "test");
  if (const auto* const error = std::get_if<ScenarioError>(&parsed))
    throw std::runtime_error(error->message());
  EmbeddedRecord record;
  ScenarioPlayer player(std::get<Scenario>(std::move(parsed)), record.sink());
  player.play();
  return record;
}

/// The lines of the transcript of `text`, without their times, from the first one on that begins with
/// `start`.
inline std::vector<std::string> playedFrom(std::string_view start, std::string_view text) {
  const auto lines = played(text).lines();
  return {std::find_if(lines.begin(), lines.end(),
                       [&](const std::string& line) { return line.starts_with(start); }),
          lines.end()};
}

/// The value that the last `show` of the scenario `text` gives for `name`.
inline std::string shown(std::string_view name, std::string_view text) {
  const std::string prefix = "= " + std::string(name) + " ";
  const auto lines = played(text).linesWith(prefix);
  if (lines.empty()) throw std::runtime_error("nothing is shown for " + std::string(name));
  return lines.back().substr(prefix.size());
}

}  // namespace vantorel
