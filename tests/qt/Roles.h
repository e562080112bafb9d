#pragma once

#include <string>
#include <vector>

#include "Process.h"

namespace vantorel::test {

/// The arguments that make this program run as a partner of a test instead of running the tests.
namespace role {
inline const std::string writeSettings = "--write-settings";  ///< PATH: changes the settings for ever
inline const std::string serveRemote = "--serve-remote";  ///< [headless | from-a-thread]: a program under it
inline const std::string sendRemote = "--send-remote";    ///< toggle | show | quit: prints the answer
inline const std::string sendRemoteInHaste = "--send-remote-in-haste";  ///< the same, but does not wait long
inline const std::string printLines = "--print-lines";                  ///< writes lines from several threads
}  // namespace role

/// What the settings change between.
std::string oldList();
std::string newList();

/// Runs the role that the arguments name and returns its exit status; -1 if they name none.
int runRole(const std::vector<std::string>& arguments);

/// The path of this program, to start it in a role.
std::string thisProgram();

}  // namespace vantorel::test
