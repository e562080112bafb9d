#pragma once

#include <string>
#include <vector>

#include "XcbConnection.h"

namespace vantorel::test {

/// The window of another program, as large as the screen, with the keyboard focus. It sees what a user types
/// and clicks.
class EventWindow {
 public:
  /// Returns when the window has the focus.
  explicit EventWindow(const std::string& display);

  /// What arrived since the last call, such as "key 9 down" or "button 4 up". Everything that the server has
  /// carried out before is among it.
  std::vector<std::string> takeEvents();

  bool hasFocus() const;

 private:
  XcbConnection connection;
  xcb_window_t window = XCB_NONE;
};

}  // namespace vantorel::test
