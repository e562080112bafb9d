#pragma once

#include "CommandLine.h"

namespace vantorel {

// Each carries out one command and returns the exit status of the process. What went wrong stands on standard
// error.

/// 0 played to the end; 2 the scenario cannot be read or is wrong; 1 the picture cannot be drawn or written.
int playScenario(const PlayScenario& command);

/// 0 ended by a signal or from outside; 1 cannot run here.
int runHeadless(const RunHeadless& command);

/// 0, with a line for each controller on standard output.
int listControllers();

/// 0 done; 1 no program runs, or it refused.
int askRunningProgram(RemoteCommand command);

/// 0 the user quit, or another program's window was shown; 1 cannot run here. `argumentCount` and
/// `arguments` are those of the process, for Qt.
int openWindow(int& argumentCount, char** arguments);

}  // namespace vantorel
