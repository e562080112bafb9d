#include "SignalWatcher.h"

#include <fcntl.h>

#include <array>
#include <atomic>
#include <cerrno>

namespace vantorel {
namespace {

/// Where the running watcher takes signals: all that a signal handler can get at is a global.
std::atomic<int> writeEnd = -1;
static_assert(std::atomic<int>::is_always_lock_free);

/// Runs between any two instructions of any thread, so it may do no more than this.
void forward(int signal) {
  const int savedError = errno;
  const auto byte = static_cast<unsigned char>(signal);
  [[maybe_unused]] const ssize_t written = write(writeEnd, &byte, sizeof byte);
  errno = savedError;
}

std::pair<Descriptor, Descriptor> openPipe() {
  std::array<int, 2> ends{-1, -1};
  [[maybe_unused]] const int result = pipe2(ends.data(), O_NONBLOCK | O_CLOEXEC);
  return {Descriptor(ends[0], "pipe2"), Descriptor(ends[1], "pipe2")};
}

}  // namespace

SignalWatcher::SignalWatcher(std::function<void(int signal)> signalHandler)
    : pipe(openPipe()),
      handler(std::move(signalHandler)),
      watcher(pipe.first.number(), [this] { deliver(); }) {
  writeEnd = pipe.second.number();
  take(SIGINT);
  take(SIGTERM);
  take(SIGHUP);
}

SignalWatcher::~SignalWatcher() {
  for (const Previous& before : previous) sigaction(before.signal, &before.action, nullptr);
  writeEnd = -1;
}

void SignalWatcher::take(int signal) {
  Previous before{.signal = signal, .action = {}};
  sigaction(signal, nullptr, &before.action);
  if (signal == SIGHUP && before.action.sa_handler == SIG_IGN) return;
  struct sigaction action {};
  action.sa_handler = forward;
  action.sa_flags = SA_RESTART;
  sigaction(signal, &action, nullptr);
  previous.push_back(before);
}

void SignalWatcher::deliver() {
  unsigned char signal = 0;
  if (read(pipe.first.number(), &signal, sizeof signal) != sizeof signal) return;
  const auto held = handler;  // which may destroy this watcher
  held(signal);
}

}  // namespace vantorel
