#pragma once

#include <xcb/xcb.h>

#include <optional>
#include <string>
#include <vector>

#include "XcbConnection.h"

namespace vantorel::test {

/// The windows that the window manager manages, seen and handled as a task bar does.
class ManagedWindows {
 public:
  explicit ManagedWindows(const std::string& display) : connection(display) {}

  /// Those with this title, the lowest one first. A closed window is not among them, a minimised one is.
  std::vector<xcb_window_t> titled(const std::string& title) const;

  /// The highest window of all, apart from panels: they are always above.
  xcb_window_t highest() const;

  /// The window that has the keyboard.
  xcb_window_t active() const;

  bool isMinimised(xcb_window_t window) const;

  struct Size {
    int width = 0;
    int height = 0;
  };
  Size size(xcb_window_t window) const;

  void close(xcb_window_t window) const;
  void minimise(xcb_window_t window) const;

  /// Sends the press and the release of a key to `window`, as a program without a keyboard at hand does.
  void sendKey(xcb_window_t window, xcb_keycode_t keyCode) const;

 private:
  xcb_atom_t atom(const std::string& name) const;
  std::string bytes(xcb_window_t window, const std::string& property) const;
  std::vector<std::uint32_t> numbers(xcb_window_t window, const std::string& property) const;
  void ask(xcb_window_t window, const std::string& message, std::uint32_t detail) const;

  XcbConnection connection;
};

}  // namespace vantorel::test
