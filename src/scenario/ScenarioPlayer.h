#pragma once

#include "EmbeddedPlatform.h"
#include "OutsideWorld.h"
#include "Scenario.h"
#include "ScenarioUser.h"

namespace vantorel {

/// Plays a scenario: runs the whole program but the drawing on an embedded platform of its own. One at a
/// time, since the program's shared managers are.
class ScenarioPlayer {
 public:
  /// `sink` takes the transcript line by line as the play goes.
  ScenarioPlayer(Scenario scenarioToPlay, const Transcript::Sink& sink);

  /// Plays from the first line to the end; once.
  void play();

  /// The window as it stands, or null while the program does not run. It lives as long as this object.
  WindowState* window() const { return user.window(); }

 private:
  void take(const ScenarioLine& line);

  Scenario scenario;
  EmbeddedPlatform platform;
  OutsideWorld world{platform};
  ScenarioUser user{platform};
};

}  // namespace vantorel
