#include "XTestEventPoster.h"

#include <xcb/xtest.h>

#include <algorithm>
#include <cmath>

#include "XcbKeyCode.h"
#include "XcbReply.h"

namespace vantorel {
namespace {

constexpr std::uint8_t leftButton = 1;
constexpr std::uint8_t wheelUp = 4;
constexpr std::uint8_t wheelDown = 5;
constexpr std::uint8_t wheelLeft = 6;
constexpr std::uint8_t wheelRight = 7;

bool isInKeymap(xcb_connection_t* connection, xcb_keycode_t key) {
  const xcb_setup_t* const setup = xcb_get_setup(connection);
  if (key < setup->min_keycode || key > setup->max_keycode) return false;
  const XcbReply<xcb_get_keyboard_mapping_reply_t> mapping(
      xcb_get_keyboard_mapping_reply(connection, xcb_get_keyboard_mapping(connection, key, 1), nullptr));
  if (!mapping) return false;
  const xcb_keysym_t* const symbols = xcb_get_keyboard_mapping_keysyms(mapping.get());
  return std::any_of(symbols, symbols + xcb_get_keyboard_mapping_keysyms_length(mapping.get()),
                     [](xcb_keysym_t symbol) { return symbol != XCB_NO_SYMBOL; });
}

}  // namespace

XTestEventPoster::XTestEventPoster(const XcbConnection& xcbConnection)
    : connection(xcbConnection), hasXTest(xcbConnection.has(xcb_test_id)) {}

XTestEventPoster::~XTestEventPoster() { releaseEverything(); }

std::optional<KeyboardEvent> XTestEventPoster::makeKeyboardEvent(std::uint16_t keyCode, bool isDown) {
  const std::optional<xcb_keycode_t> key = xcbKeyCode(keyCode);
  if (!key || !isInKeymap(connection.handle(), *key)) return std::nullopt;
  discardEvents();
  return KeyboardEvent{keyCode, isDown};
}

std::optional<MouseEvent> XTestEventPoster::makeMouseEvent(MouseEventType type, Point location) {
  if (!std::isfinite(location.x) || !std::isfinite(location.y)) return std::nullopt;
  return MouseEvent{type, location};
}

std::optional<ScrollEvent> XTestEventPoster::makeScrollEvent(std::int32_t wheel1, std::int32_t wheel2) {
  return ScrollEvent{.wheel1 = wheel1, .wheel2 = wheel2};
}

std::optional<Point> XTestEventPoster::cursorLocation() {
  const XcbReply<xcb_query_pointer_reply_t> pointer(xcb_query_pointer_reply(
      connection.handle(), xcb_query_pointer(connection.handle(), connection.root()), nullptr));
  if (!pointer || pointer->same_screen == 0) return std::nullopt;
  discardEvents();
  const std::lock_guard lock(mutex);
  return Point{x.positionAt(pointer->root_x), y.positionAt(pointer->root_y)};
}

void XTestEventPoster::post(const KeyboardEvent& event) {
  const std::optional<xcb_keycode_t> key = xcbKeyCode(event.keyCode);
  if (!key) return;
  const std::lock_guard lock(mutex);
  setKey(*key, event.isDown);
  connection.sync();  // a busy server must not cut the time short that the key is held
}

void XTestEventPoster::post(const MouseEvent& event) {
  const std::lock_guard lock(mutex);
  fakeInput(XCB_MOTION_NOTIFY, 0, x.pixelFor(event.location.x), y.pixelFor(event.location.y));
  if (event.type != MouseEventType::moved) setButton(leftButton, event.type == MouseEventType::leftDown);
  connection.flush();
}

void XTestEventPoster::post(const ScrollEvent& event) {
  const std::lock_guard lock(mutex);
  turnWheel(verticalWheel.clicksAfter(event.wheel1), wheelUp, wheelDown);
  turnWheel(horizontalWheel.clicksAfter(event.wheel2), wheelRight, wheelLeft);
  connection.flush();
}

void XTestEventPoster::releaseEverything() {
  const std::lock_guard lock(mutex);
  while (!keysDown.empty()) setKey(*keysDown.begin(), false);
  while (!buttonsDown.empty()) setButton(*buttonsDown.begin(), false);
  connection.sync();
}

void XTestEventPoster::setKey(xcb_keycode_t key, bool isDown) {
  fakeInput(isDown ? XCB_KEY_PRESS : XCB_KEY_RELEASE, key);
  if (isDown) {
    keysDown.insert(key);
  } else {
    keysDown.erase(key);
  }
}

void XTestEventPoster::setButton(std::uint8_t button, bool isDown) {
  fakeInput(isDown ? XCB_BUTTON_PRESS : XCB_BUTTON_RELEASE, button);
  if (isDown) {
    buttonsDown.insert(button);
  } else {
    buttonsDown.erase(button);
  }
}

void XTestEventPoster::turnWheel(std::int64_t clicks, std::uint8_t positiveButton,
                                 std::uint8_t negativeButton) {
  const std::uint8_t button = clicks > 0 ? positiveButton : negativeButton;
  for (std::int64_t count = std::abs(clicks); count > 0; --count) {
    setButton(button, true);
    setButton(button, false);
  }
}

void XTestEventPoster::fakeInput(std::uint8_t type, std::uint8_t detail, std::int16_t rootX,
                                 std::int16_t rootY) const {
  if (!hasXTest) return;
  xcb_test_fake_input(connection.handle(), type, detail, XCB_CURRENT_TIME, connection.root(), rootX, rootY,
                      0);
}

/// Changes of the keymap are told to every client; unread they would pile up.
void XTestEventPoster::discardEvents() const {
  while (XcbReply<xcb_generic_event_t>(xcb_poll_for_queued_event(connection.handle()))) {
  }
}

}  // namespace vantorel
