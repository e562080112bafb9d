#pragma once

#include <memory>

#include "EmbeddedPlatform.h"
#include "ScenarioCommand.h"
#include "VantorelApp.h"

namespace vantorel {

/// A user who starts the program on the embedded platform, works at its window and ends it.
class ScenarioUser {
 public:
  /// `embeddedPlatform` outlives this object.
  explicit ScenarioUser(EmbeddedPlatform& embeddedPlatform) : platform(embeddedPlatform) {}

  /// The window of the running program, or null.
  WindowState* window() const { return openWindow; }

  /// Does what `command` says, if it can be done now; returns whether it could. Afterwards the program has
  /// ended if it asked for that.
  bool perform(const UserCommand& command);

 private:
  bool perform(const Launch& command);
  bool perform(const Quit& command);
  /// Any other command needs the window.
  template <class Command>
  bool perform(const Command& command) {
    return openWindow != nullptr && performAt(*openWindow, command);
  }

  bool performAt(WindowState& window, const ChooseMenuItem& command);
  static bool performAt(WindowState& window, const SetMapping& command);
  static bool performAt(WindowState& window, const SetJoystick& command);
  static bool performAt(WindowState& window, const SetMenuBar& command);
  static bool performAt(WindowState& window, const MoveSlider& command);
  static bool performAt(WindowState& window, const OpenPicker& command);
  static bool performAt(WindowState& window, const CancelPicker& command);
  static bool performAt(WindowState& window, const PickKey& command);
  static bool performAt(WindowState& window, const ChooseLanguage& command);
  static bool performAt(WindowState& window, const RefreshSystem& command);
  static bool performAt(WindowState& window, const StartProbe& command);
  static bool performAt(WindowState& window, const FixPermission& command);
  static bool performAt(WindowState& window, const DownloadDriver& command);
  bool performAt(WindowState& window, const ShowState& command);

  void endProgram();

  EmbeddedPlatform& platform;
  std::unique_ptr<VantorelApp> program;  ///< null while it does not run
  WindowState* openWindow = nullptr;     ///< the program's
};

}  // namespace vantorel
