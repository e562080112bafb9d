// first_frame PROGRAM [ARGUMENT...]: starts PROGRAM on the X server of DISPLAY and prints its process id and
// the milliseconds from the start until something was drawn into a window of the size of a main window. The
// program goes on running; what it prints is dropped.

#include <fcntl.h>
#include <spawn.h>
#include <unistd.h>
#include <xcb/damage.h>

#include <chrono>
#include <cstdio>
#include <exception>
#include <system_error>

#include "XcbConnection.h"
#include "XcbReply.h"

extern char** environ;

namespace {

using namespace vantorel;
using Clock = std::chrono::steady_clock;

/// Smaller windows are helpers of the toolkit.
constexpr int smallestMainWindow = 500;

/// Watches for drawing in `created`, unless it is too small. Not later than when it is made: to be watched
/// from then on counts as drawing for a window that can be seen already.
void watch(const XcbConnection& connection, const xcb_create_notify_event_t& created) {
  if (created.width < smallestMainWindow) return;
  xcb_damage_create(connection.handle(), xcb_generate_id(connection.handle()), created.window,
                    XCB_DAMAGE_REPORT_LEVEL_NON_EMPTY);
  connection.flush();
}

void waitForDrawing(const XcbConnection& connection) {
  const auto* const damage = xcb_get_extension_data(connection.handle(), &xcb_damage_id);
  while (const XcbReply<xcb_generic_event_t> event{xcb_wait_for_event(connection.handle())}) {
    const auto type = event->response_type & 0x7FU;
    if (type == XCB_CREATE_NOTIFY)
      watch(connection, reinterpret_cast<const xcb_create_notify_event_t&>(*event));
    if (type == static_cast<unsigned>(damage->first_event + XCB_DAMAGE_NOTIFY)) return;
  }
}

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
  const XcbConnection connection;
  const XcbReply<xcb_damage_query_version_reply_t> version(xcb_damage_query_version_reply(
      connection.handle(), xcb_damage_query_version(connection.handle(), 1, 1), nullptr));
  const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
  xcb_change_window_attributes(connection.handle(), connection.root(), XCB_CW_EVENT_MASK, &mask);
  connection.sync();

  const auto start = Clock::now();
  const pid_t pid = startSilently(argv + 1);
  waitForDrawing(connection);
  const std::chrono::duration<double, std::milli> elapsed = Clock::now() - start;
  std::printf("%d %.1f\n", pid, elapsed.count());
  return 0;
} catch (const std::exception& problem) {
  std::fprintf(stderr, "%s\n", problem.what());
  return 1;
}
