#pragma once

#include <optional>
#include <stdexcept>
#include <string>

#include "XcbConnection.h"
#include "XcbReply.h"

namespace vantorel {

/// Beside a window manager, on a busy machine, a window may be seen before it could be watched. It counts as
/// drawn into from then on, so nobody knows when it was.
struct WatchedTooLate : std::runtime_error {
  WatchedTooLate() : std::runtime_error("the window was there before it could be watched") {}
};

/// Waits, as another client of an X server, until a program has drawn into its main window for the first
/// time. Where there is no window manager it is one itself, so that no window is seen before it is watched.
class FirstDrawing {
 public:
  /// Watches the windows of `display`, or that of the environment, that are made from now on. Throws
  /// std::runtime_error when there is no X server.
  explicit FirstDrawing(const std::optional<std::string>& display = std::nullopt);

  /// Returns the window, as soon as something was drawn into one of the size of a main window. Throws
  /// WatchedTooLate, and std::runtime_error when nothing comes for half a minute.
  xcb_window_t wait() const;

 private:
  bool receive(std::uint32_t events) const;
  void watch(xcb_window_t window, int width) const;
  void map(xcb_window_t window) const;
  void configure(const xcb_configure_request_event_t& wish) const;
  XcbReply<xcb_generic_event_t> nextEvent() const;

  XcbConnection connection;
};

}  // namespace vantorel
