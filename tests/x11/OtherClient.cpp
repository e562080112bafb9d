#include "OtherClient.h"

#include <xcb/xtest.h>

#include <algorithm>
#include <span>
#include <stdexcept>
#include <vector>

#include "XcbReply.h"

namespace vantorel::test {
namespace {

XcbReply<xcb_query_pointer_reply_t> queryPointer(const XcbConnection& connection) {
  XcbReply<xcb_query_pointer_reply_t> reply(xcb_query_pointer_reply(
      connection.handle(), xcb_query_pointer(connection.handle(), connection.root()), nullptr));
  if (!reply) throw std::runtime_error("QueryPointer failed");
  return reply;
}

}  // namespace

void OtherClient::fakeKey(std::uint8_t type, xcb_keycode_t key) {
  xcb_test_fake_input(connection.handle(), type, key, XCB_CURRENT_TIME, connection.root(), 0, 0, 0);
  connection.sync();
}

void OtherClient::press(xcb_keycode_t key) { fakeKey(XCB_KEY_PRESS, key); }

void OtherClient::release(xcb_keycode_t key) { fakeKey(XCB_KEY_RELEASE, key); }

void OtherClient::tap(std::initializer_list<xcb_keycode_t> keys) {
  for (const xcb_keycode_t key : keys) press(key);
  for (auto key = std::rbegin(keys); key != std::rend(keys); ++key) release(*key);
}

void OtherClient::movePointer(std::int16_t x, std::int16_t y) {
  xcb_warp_pointer(connection.handle(), XCB_NONE, connection.root(), 0, 0, 0, 0, x, y);
  connection.sync();
}

void OtherClient::setSymbol(xcb_keycode_t key, xcb_keysym_t symbol) {
  xcb_change_keyboard_mapping(connection.handle(), 1, key, 1, &symbol);
  connection.sync();
}

void OtherClient::setModifierKey(xcb_map_index_t modifier, xcb_keycode_t key) {
  xcb_connection_t* const handle = connection.handle();
  const XcbReply<xcb_get_modifier_mapping_reply_t> present(
      xcb_get_modifier_mapping_reply(handle, xcb_get_modifier_mapping(handle), nullptr));
  if (!present) throw std::runtime_error("GetModifierMapping failed");
  const std::uint8_t width = present->keycodes_per_modifier;
  const std::span old(xcb_get_modifier_mapping_keycodes(present.get()), std::size_t{8} * width);
  std::vector<xcb_keycode_t> keys(old.begin(), old.end());
  std::replace(keys.begin(), keys.end(), key, xcb_keycode_t{0});
  const auto row = keys.begin() + static_cast<std::ptrdiff_t>(modifier) * width;
  std::fill_n(row, width, xcb_keycode_t{0});
  *row = key;
  const XcbReply<xcb_set_modifier_mapping_reply_t> answer(
      xcb_set_modifier_mapping_reply(handle, xcb_set_modifier_mapping(handle, width, keys.data()), nullptr));
  if (!answer || answer->status != XCB_MAPPING_STATUS_SUCCESS) throw std::runtime_error("no new modifiers");
}

bool OtherClient::grab(xcb_keycode_t key, std::uint16_t modifiers) {
  const xcb_void_cookie_t request = xcb_grab_key_checked(connection.handle(), 1, connection.root(), modifiers,
                                                         key, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
  return XcbReply<xcb_generic_error_t>(xcb_request_check(connection.handle(), request)) == nullptr;
}

bool OtherClient::isKeyDown(xcb_keycode_t key) {
  const XcbReply<xcb_query_keymap_reply_t> reply(
      xcb_query_keymap_reply(connection.handle(), xcb_query_keymap(connection.handle()), nullptr));
  if (!reply) throw std::runtime_error("QueryKeymap failed");
  return (reply->keys[key / 8] >> (key % 8) & 1) != 0;
}

std::uint16_t OtherClient::state() { return queryPointer(connection)->mask; }

std::pair<int, int> OtherClient::pointer() {
  const auto reply = queryPointer(connection);
  return {reply->root_x, reply->root_y};
}

}  // namespace vantorel::test
