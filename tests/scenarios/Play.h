#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>

#include "ScenarioParser.h"
#include "ScenarioPlayer.h"

namespace vantorel {

/// The transcript of the scenario `text`, as the program prints it. Throws when a line is wrong.
inline std::string transcriptOf(std::string_view text, const std::string& fileName) {
  auto parsed = parseScenario(text, fileName);
  if (const auto* const error = std::get_if<ScenarioError>(&parsed))
    throw std::runtime_error(error->message());
  std::string transcript;
  ScenarioPlayer player(std::get<Scenario>(std::move(parsed)),
                        [&transcript](std::string_view line) { transcript.append(line).append("\n"); });
  player.play();
  return transcript;
}

}  // namespace vantorel
