#include "ManagedWindows.h"

#include <cstring>
#include <initializer_list>

#include "XcbReply.h"

namespace vantorel::test {
namespace {

constexpr std::uint32_t iconicState = 3;
constexpr std::uint32_t fromATaskBar = 2;

}  // namespace

std::vector<xcb_window_t> ManagedWindows::titled(const std::string& title) const {
  std::vector<xcb_window_t> windows = numbers(connection.root(), "_NET_CLIENT_LIST_STACKING");
  std::erase_if(windows, [&](xcb_window_t window) { return bytes(window, "_NET_WM_NAME") != title; });
  return windows;
}

xcb_window_t ManagedWindows::highest() const {
  const std::vector<std::uint32_t> panel{atom("_NET_WM_WINDOW_TYPE_DOCK")};
  std::vector<xcb_window_t> windows = numbers(connection.root(), "_NET_CLIENT_LIST_STACKING");
  std::erase_if(windows,
                [&](xcb_window_t window) { return numbers(window, "_NET_WM_WINDOW_TYPE") == panel; });
  return windows.empty() ? xcb_window_t{XCB_NONE} : windows.back();
}

xcb_window_t ManagedWindows::active() const {
  const auto windows = numbers(connection.root(), "_NET_ACTIVE_WINDOW");
  return windows.empty() ? xcb_window_t{XCB_NONE} : windows.front();
}

bool ManagedWindows::isMinimised(xcb_window_t window) const {
  const auto state = numbers(window, "WM_STATE");
  return !state.empty() && state.front() == iconicState;
}

ManagedWindows::Size ManagedWindows::size(xcb_window_t window) const {
  const XcbReply<xcb_get_geometry_reply_t> geometry(
      xcb_get_geometry_reply(connection.handle(), xcb_get_geometry(connection.handle(), window), nullptr));
  return geometry ? Size{geometry->width, geometry->height} : Size{};
}

void ManagedWindows::close(xcb_window_t window) const { ask(window, "_NET_CLOSE_WINDOW", XCB_CURRENT_TIME); }

void ManagedWindows::minimise(xcb_window_t window) const { ask(window, "WM_CHANGE_STATE", iconicState); }

void ManagedWindows::sendKey(xcb_window_t window, xcb_keycode_t keyCode) const {
  for (const auto type : std::initializer_list<std::uint8_t>{XCB_KEY_PRESS, XCB_KEY_RELEASE}) {
    xcb_key_press_event_t event{};
    event.response_type = type;
    event.detail = keyCode;
    event.root = connection.root();
    event.event = window;
    event.same_screen = 1;
    xcb_send_event(connection.handle(), 0, window, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char*>(&event));
  }
  xcb_flush(connection.handle());
}

xcb_atom_t ManagedWindows::atom(const std::string& name) const {
  const XcbReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
      connection.handle(),
      xcb_intern_atom(connection.handle(), 0, static_cast<std::uint16_t>(name.size()), name.c_str()),
      nullptr));
  return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

std::string ManagedWindows::bytes(xcb_window_t window, const std::string& property) const {
  constexpr std::uint32_t enough = 1024;
  const XcbReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(
      connection.handle(),
      xcb_get_property(connection.handle(), 0, window, atom(property), XCB_GET_PROPERTY_TYPE_ANY, 0, enough),
      nullptr));
  if (!reply) return {};
  return {static_cast<const char*>(xcb_get_property_value(reply.get())),
          static_cast<std::size_t>(xcb_get_property_value_length(reply.get()))};
}

std::vector<std::uint32_t> ManagedWindows::numbers(xcb_window_t window, const std::string& property) const {
  const std::string value = bytes(window, property);
  std::vector<std::uint32_t> result(value.size() / sizeof(std::uint32_t));
  if (!result.empty()) std::memcpy(result.data(), value.data(), result.size() * sizeof(std::uint32_t));
  return result;
}

/// A request to the window manager, as every client may send it.
void ManagedWindows::ask(xcb_window_t window, const std::string& message, std::uint32_t detail) const {
  xcb_client_message_event_t event{};
  event.response_type = XCB_CLIENT_MESSAGE;
  event.format = 32;
  event.window = window;
  event.type = atom(message);
  event.data.data32[0] = detail;
  event.data.data32[1] = fromATaskBar;
  xcb_send_event(connection.handle(), 0, connection.root(),
                 XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                 reinterpret_cast<const char*>(&event));
  xcb_flush(connection.handle());
}

}  // namespace vantorel::test
