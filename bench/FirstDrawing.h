#pragma once

#include <optional>
#include <string>

#include "XcbConnection.h"

namespace vantorel {

/// Waits, as another client of an X server, until a program has drawn into its main window for the first
/// time.
class FirstDrawing {
 public:
  /// Watches the windows of `display`, or that of the environment, that are made from now on. Throws
  /// std::runtime_error when there is no X server.
  explicit FirstDrawing(const std::optional<std::string>& display = std::nullopt);

  /// Returns the window, as soon as something was drawn into one of the size of a main window.
  xcb_window_t wait() const;

 private:
  void watch(const xcb_create_notify_event_t& created) const;

  XcbConnection connection;
};

}  // namespace vantorel
