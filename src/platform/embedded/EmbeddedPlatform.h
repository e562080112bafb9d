#pragma once

#include "EmbeddedAccessibilityTrust.h"
#include "EmbeddedApplication.h"
#include "EmbeddedEventPoster.h"
#include "EmbeddedFileManager.h"
#include "EmbeddedGameControllers.h"
#include "EmbeddedHotKeys.h"
#include "EmbeddedOutput.h"
#include "EmbeddedStatusBar.h"
#include "EmbeddedUserDefaults.h"
#include "EmbeddedWorkspace.h"
#include "Faults.h"
#include "Platform.h"
#include "Transcript.h"
#include "VirtualTime.h"

namespace vantorel {

/// A machine in memory and in virtual time: no hardware, no display, no permission, no waiting.
///
/// The program sees it through `ports`; whoever plays the outside world uses the members. What the program
/// does to the outside world is recorded in the transcript. One thread.
class EmbeddedPlatform {
 public:
  /// `sink` takes the transcript's lines; without one they are dropped.
  explicit EmbeddedPlatform(const Transcript::Sink& sink = nullptr) : transcript(time, sink) {}
  EmbeddedPlatform(const EmbeddedPlatform&) = delete;
  EmbeddedPlatform& operator=(const EmbeddedPlatform&) = delete;

  Platform& ports() { return services; }

  VirtualTime time;
  Transcript transcript;
  Faults faults;
  EmbeddedOutput standardOutput{transcript};
  EmbeddedAccessibilityTrust accessibility{transcript};
  EmbeddedEventPoster eventPoster{transcript, faults};
  EmbeddedGameControllers gameControllers{time};
  EmbeddedHotKeys hotKeys{time, transcript};
  EmbeddedStatusBar statusBar{transcript, faults};
  EmbeddedApplication application{transcript};
  EmbeddedWorkspace workspace{transcript};
  EmbeddedUserDefaults userDefaults{transcript};
  EmbeddedFileManager fileManager;

 private:
  Platform services{
      time,    time,      time,        standardOutput, accessibility, eventPoster, gameControllers,
      hotKeys, statusBar, application, workspace,      userDefaults,  fileManager};
};

}  // namespace vantorel
