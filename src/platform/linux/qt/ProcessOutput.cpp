#include "ProcessOutput.h"

#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <string>

namespace vantorel {
namespace {

/// Waits until more can be written; false if nothing ever can. For a descriptor shared with a program that
/// has made it non-blocking.
bool waitForRoom(int descriptor) {
  pollfd wait{.fd = descriptor, .events = POLLOUT, .revents = 0};
  return poll(&wait, 1, -1) >= 0 || errno == EINTR;
}

void writeAll(int descriptor, std::string_view text) {
  while (!text.empty()) {
    const ssize_t written = write(descriptor, text.data(), text.size());
    if (written >= 0) {
      text.remove_prefix(static_cast<std::size_t>(written));
    } else if (errno == EAGAIN) {
      if (!waitForRoom(descriptor)) return;
    } else if (errno != EINTR) {
      return;
    }
  }
}

}  // namespace

ProcessOutput::ProcessOutput(int outputDescriptor) : descriptor(outputDescriptor) {
  std::signal(SIGPIPE, SIG_IGN);
}

void ProcessOutput::writeLine(std::string_view line) {
  std::string text(line);
  text += '\n';
  const std::lock_guard lock(mutex);
  writeAll(descriptor, text);
}

}  // namespace vantorel
