#pragma once

#include <xcb/xcb.h>

#include <QImage>
#include <QPoint>
#include <string>
#include <vector>

namespace vantorel::test {

/// What another client of the X server sees of the screen, and a pointer and a keyboard to act on it.
class Screen {
 public:
  /// Throws when the display cannot be reached.
  explicit Screen(const std::string& display);
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;
  ~Screen();

  /// The window with this title, mapped or not; XCB_NONE when there is none.
  xcb_window_t windowTitled(const std::string& title) const;

  /// The icon windows that are visible inside a tray, wherever they are.
  std::vector<xcb_window_t> dockedIcons() const;

  /// Whether a menu is open: a visible window that no window manager manages, larger than an icon.
  bool menuIsOpen() const;

  bool isVisible(xcb_window_t window) const;

  /// Whether the window manager keeps the window out of the task bar and out of the pager.
  bool skipsTaskBar(xcb_window_t window) const;
  bool skipsPager(xcb_window_t window) const;

  QImage picture(xcb_window_t window) const;

  /// Moves the pointer to the middle of `window` and clicks there.
  void click(xcb_window_t window) const;

  /// Presses and releases the keys in turn, all held down until the last one is pressed.
  void press(const std::vector<xcb_keysym_t>& keys) const;

 private:
  xcb_atom_t atom(const std::string& name) const;
  std::string bytes(xcb_window_t window, const std::string& property) const;
  bool hasState(xcb_window_t window, const std::string& state) const;
  std::vector<xcb_window_t> allWindows() const;
  std::vector<xcb_window_t> children(xcb_window_t window) const;
  xcb_keycode_t keyCode(xcb_keysym_t keysym) const;
  void fake(std::uint8_t type, std::uint8_t detail) const;

  xcb_connection_t* connection;
  xcb_window_t root = XCB_NONE;
};

}  // namespace vantorel::test
