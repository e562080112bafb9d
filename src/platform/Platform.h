#pragma once

#include "AccessibilityTrust.h"
#include "Application.h"
#include "Clock.h"
#include "EventPoster.h"
#include "FileManager.h"
#include "GameControllers.h"
#include "HotKeys.h"
#include "MainQueue.h"
#include "StandardOutput.h"
#include "StatusBar.h"
#include "Timers.h"
#include "UserDefaults.h"
#include "Workspace.h"

namespace vantorel {

/// Everything that the program asks of the machine that it runs on. The services outlive the program.
struct Platform {
  MainQueue& mainQueue;
  Timers& timers;
  Clock& clock;
  StandardOutput& standardOutput;
  AccessibilityTrust& accessibility;
  EventPoster& eventPoster;
  GameControllers& gameControllers;
  HotKeys& hotKeys;
  StatusBar& statusBar;
  Application& application;
  Workspace& workspace;
  UserDefaults& userDefaults;
  FileManager& fileManager;
};

}  // namespace vantorel
