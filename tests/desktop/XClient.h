#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <string>
#include <vector>

#include "XServer.h"
#include "XcbConnection.h"

namespace vantorel::test {

/// Another program on the X server: a window that has the focus and sees what is typed and clicked.
class XClient {
 public:
  struct Event {
    enum class Kind : std::uint8_t { keyDown, keyUp, buttonDown, buttonUp };
    Kind kind;
    std::uint8_t detail;  ///< the key code or the button
    std::uint32_t time;   ///< the server's, in milliseconds
  };

  /// Returns once the window is shown and focused.
  explicit XClient(const XServer& server);

  /// What the window has seen so far of the key or button `detail`.
  std::vector<Event> events(std::uint8_t detail);

  /// How often `kind` of `detail` was seen so far.
  std::size_t count(Event::Kind kind, std::uint8_t detail);

  struct Pixel {
    int x;
    int y;
    friend bool operator==(const Pixel&, const Pixel&) = default;
  };
  Pixel pointer() const;
  void movePointer(Pixel pixel);

  /// Types the key `keyCode` while the keys `held` are down, as a keyboard would.
  void type(std::uint8_t keyCode, const std::vector<std::uint8_t>& held = {});

  /// Whether any key is down as the server sees it.
  bool isAnyKeyDown() const;

 private:
  void fakeInput(std::uint8_t type, std::uint8_t detail, Pixel pixel = Pixel{0, 0});
  void collect();

  XcbConnection connection;
  xcb_window_t window;
  std::vector<Event> seen;
};

}  // namespace vantorel::test
