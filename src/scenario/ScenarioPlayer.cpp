#include "ScenarioPlayer.h"

#include <utility>
#include <variant>

namespace vantorel {

ScenarioPlayer::ScenarioPlayer(Scenario scenarioToPlay, const Transcript::Sink& sink)
    : scenario(std::move(scenarioToPlay)), platform(sink) {}

void ScenarioPlayer::play() {
  for (const ScenarioLine& line : scenario.lines) {
    platform.time.happenAt(line.due, [this, &line] { take(line); });
  }
  platform.time.playUntil(scenario.end);
  platform.transcript.close();  // what still runs ends with this object, outside of the play
}

void ScenarioPlayer::take(const ScenarioLine& line) {
  if (const auto* const command = std::get_if<WorldCommand>(&line.command)) {
    world.perform(*command);
    return;
  }
  platform.time.post([this, &line] {
    if (!user.perform(std::get<UserCommand>(line.command))) platform.transcript.write("! " + line.text);
  });
}

}  // namespace vantorel
