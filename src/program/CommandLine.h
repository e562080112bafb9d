#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "RemoteCommand.h"

namespace vantorel {

/// Open the window, or show that of the program that runs already.
struct OpenWindow {};

/// Play a scenario on the embedded platform: that of `file` ("-" is standard input), or the built-in one.
struct PlayScenario {
  std::optional<std::string> file;
  std::optional<std::string> screenshot;  ///< where to draw the window as it stands at the end
};

/// Run without a window.
struct RunHeadless {
  bool isMappingOn = true;
  bool areThumbsticksOn = false;
};

struct ListControllers {};

/// Print `text` on standard output and end.
struct PrintText {
  std::string text;
};

/// A wrong argument: one line for standard error.
struct WrongArguments {
  std::string message;
};

using Command = std::variant<OpenWindow, PlayScenario, RunHeadless, ListControllers, RemoteCommand, PrintText,
                             WrongArguments>;

/// What the program was started for; `arguments` are those after its own name.
Command parseCommandLine(const std::vector<std::string>& arguments);

}  // namespace vantorel
