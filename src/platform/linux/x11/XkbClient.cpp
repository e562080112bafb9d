#include "XkbClient.h"

#include "XcbReply.h"

// The header is meant for C and names a member with a word of C++.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wpedantic"
#define explicit explicitComponents
#include <xcb/xkb.h>
#undef explicit
#pragma GCC diagnostic pop

namespace vantorel {
namespace {

constexpr xcb_xkb_device_spec_t keyboard = XCB_XKB_ID_USE_CORE_KBD;

void useDetectableAutoRepeat(xcb_connection_t* connection) {
  constexpr std::uint32_t flag = XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT;
  const XcbReply<xcb_xkb_per_client_flags_reply_t> flags(xcb_xkb_per_client_flags_reply(
      connection, xcb_xkb_per_client_flags(connection, keyboard, flag, flag, 0, 0, 0), nullptr));
}

void selectKeymapEvents(xcb_connection_t* connection) {
  constexpr std::uint16_t events = XCB_XKB_EVENT_TYPE_MAP_NOTIFY | XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY;
  constexpr std::uint16_t parts = XCB_XKB_MAP_PART_KEY_SYMS | XCB_XKB_MAP_PART_MODIFIER_MAP;
  xcb_xkb_select_events(connection, keyboard, events, 0, events, parts, parts, nullptr);
}

}  // namespace

std::optional<std::uint8_t> becomeXkbClient(const XcbConnection& connection) {
  if (!connection.has(xcb_xkb_id)) return std::nullopt;
  const XcbReply<xcb_xkb_use_extension_reply_t> extension(xcb_xkb_use_extension_reply(
      connection.handle(), xcb_xkb_use_extension(connection.handle(), 1, 0), nullptr));
  if (!extension || extension->supported == 0) return std::nullopt;
  useDetectableAutoRepeat(connection.handle());
  selectKeymapEvents(connection.handle());
  return xcb_get_extension_data(connection.handle(), &xcb_xkb_id)->first_event;
}

}  // namespace vantorel
