// first_frame PROGRAM [ARGUMENT...]: starts PROGRAM on the X server of DISPLAY and prints its process id and
// the milliseconds from the start until something was drawn into a window of the size of a main window. The
// program goes on running; what it prints is dropped.

#include <fcntl.h>
#include <spawn.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <exception>
#include <system_error>

#include "FirstDrawing.h"

extern char** environ;

namespace {

using Clock = std::chrono::steady_clock;

/// The program must not write into our report, nor keep the reader of it waiting.
pid_t startSilently(char** arguments) {
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  pid_t pid = 0;
  const int problem = posix_spawn(&pid, arguments[0], &actions, nullptr, arguments, environ);
  posix_spawn_file_actions_destroy(&actions);
  if (problem != 0) throw std::system_error(problem, std::generic_category(), arguments[0]);
  return pid;
}

}  // namespace

int main(int /*argc*/, char** argv) try {
  const vantorel::FirstDrawing drawing;
  const auto start = Clock::now();
  const pid_t pid = startSilently(argv + 1);
  drawing.wait();
  const std::chrono::duration<double, std::milli> elapsed = Clock::now() - start;
  std::printf("%d %.1f\n", pid, elapsed.count());
  return 0;
} catch (const std::exception& problem) {
  std::fprintf(stderr, "%s\n", problem.what());
  return 1;
}
