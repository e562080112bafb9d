#pragma once

#include <chrono>
#include <cstdint>
#include <string>

namespace vantorel {

/// What can be asked of the running program.
enum class RemoteCommand : std::uint8_t { toggle, show, quit };

enum class RemoteOutcome : std::uint8_t {
  done,
  noRunningProgram,
  noSessionBus,  ///< so whether a program runs is unknown
  refused,       ///< the running program cannot do it, or does not answer
};

struct RemoteAnswer {
  RemoteOutcome outcome = RemoteOutcome::done;
  std::string message;  ///< why it was refused: a sentence in English; else empty
};

/// Asks the program that runs in this session to do `command` and waits for its answer, at most `patience`.
/// Needs the QCoreApplication, but not its event loop.
RemoteAnswer send(RemoteCommand command, std::chrono::milliseconds patience = std::chrono::seconds(5));

}  // namespace vantorel
