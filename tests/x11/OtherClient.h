#pragma once

#include <initializer_list>
#include <string>
#include <utility>

#include "XcbConnection.h"

namespace vantorel::test {

/// Another client of an X server: it types and moves the mouse, changes the keymap, takes key combinations,
/// and looks at the state of things. Every operation is carried out when it returns.
class OtherClient {
 public:
  explicit OtherClient(const std::string& display) : connection(display) {}

  void press(xcb_keycode_t key);
  void release(xcb_keycode_t key);

  /// Presses `keys` in their order and releases them in the opposite one.
  void tap(std::initializer_list<xcb_keycode_t> keys);

  void movePointer(std::int16_t x, std::int16_t y);

  /// Gives `key` the only symbol `symbol`; XCB_NO_SYMBOL takes it out of the keymap.
  void setSymbol(xcb_keycode_t key, xcb_keysym_t symbol);

  /// Makes `key` the only one that acts as `modifier`; 0 leaves the modifier without a key.
  void setModifierKey(xcb_map_index_t modifier, xcb_keycode_t key);

  /// Grabs `key` with exactly `modifiers`; false when somebody else has done so.
  bool grab(xcb_keycode_t key, std::uint16_t modifiers);

  bool isKeyDown(xcb_keycode_t key);

  /// The modifiers and mouse buttons that are in effect, as in a key event's state.
  std::uint16_t state();

  std::pair<int, int> pointer();

 private:
  void fakeKey(std::uint8_t type, xcb_keycode_t key);

  XcbConnection connection;
};

}  // namespace vantorel::test
