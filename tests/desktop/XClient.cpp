#include "XClient.h"

#include <xcb/xtest.h>

#include <algorithm>
#include <stdexcept>

#include "WaitUntil.h"
#include "XcbReply.h"

namespace vantorel::test {

XClient::XClient(const XServer& server)
    : connection(server.display()), window(xcb_generate_id(connection.handle())) {
  const std::uint32_t eventMask = XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_KEY_RELEASE |
                                  XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_RELEASE;
  xcb_create_window(connection.handle(), XCB_COPY_FROM_PARENT, window, connection.root(), 0, 0, 1200, 850, 0,
                    XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &eventMask);
  xcb_map_window(connection.handle(), window);
  connection.flush();
  const bool isFocused = waitUntil([this] {
    xcb_set_input_focus(connection.handle(), XCB_INPUT_FOCUS_PARENT, window, XCB_CURRENT_TIME);
    const XcbReply<xcb_get_input_focus_reply_t> focus(
        xcb_get_input_focus_reply(connection.handle(), xcb_get_input_focus(connection.handle()), nullptr));
    return focus && focus->focus == window;
  });
  if (!isFocused) throw std::runtime_error("the window does not get the focus");
}

std::vector<XClient::Event> XClient::events(std::uint8_t detail) {
  collect();
  std::vector<Event> found;
  std::copy_if(seen.begin(), seen.end(), std::back_inserter(found),
               [detail](const Event& event) { return event.detail == detail; });
  return found;
}

std::size_t XClient::count(Event::Kind kind, std::uint8_t detail) {
  const auto found = events(detail);
  return static_cast<std::size_t>(
      std::count_if(found.begin(), found.end(), [kind](const Event& event) { return event.kind == kind; }));
}

XClient::Pixel XClient::pointer() const {
  const XcbReply<xcb_query_pointer_reply_t> reply(xcb_query_pointer_reply(
      connection.handle(), xcb_query_pointer(connection.handle(), connection.root()), nullptr));
  if (!reply) throw std::runtime_error("the X server does not answer");
  return {reply->root_x, reply->root_y};
}

void XClient::movePointer(Pixel pixel) {
  fakeInput(XCB_MOTION_NOTIFY, 0, pixel);
  connection.sync();
}

void XClient::type(std::uint8_t keyCode, const std::vector<std::uint8_t>& held) {
  for (const std::uint8_t key : held) fakeInput(XCB_KEY_PRESS, key);
  fakeInput(XCB_KEY_PRESS, keyCode);
  fakeInput(XCB_KEY_RELEASE, keyCode);
  for (const std::uint8_t key : held) fakeInput(XCB_KEY_RELEASE, key);
  connection.sync();
}

bool XClient::isAnyKeyDown() const {
  const XcbReply<xcb_query_keymap_reply_t> reply(
      xcb_query_keymap_reply(connection.handle(), xcb_query_keymap(connection.handle()), nullptr));
  if (!reply) throw std::runtime_error("the X server does not answer");
  return std::any_of(std::begin(reply->keys), std::end(reply->keys),
                     [](std::uint8_t bits) { return bits != 0; });
}

void XClient::fakeInput(std::uint8_t type, std::uint8_t detail, Pixel pixel) {
  xcb_test_fake_input(connection.handle(), type, detail, XCB_CURRENT_TIME, connection.root(),
                      static_cast<std::int16_t>(pixel.x), static_cast<std::int16_t>(pixel.y), 0);
}

void XClient::collect() {
  while (const XcbReply<xcb_generic_event_t> event{xcb_poll_for_event(connection.handle())}) {
    const auto type = static_cast<std::uint8_t>(event->response_type & 0x7FU);
    if (type < XCB_KEY_PRESS || type > XCB_BUTTON_RELEASE) continue;
    // Key and button events share one layout.
    const auto& input = reinterpret_cast<const xcb_key_press_event_t&>(*event);
    seen.push_back({static_cast<Event::Kind>(type - XCB_KEY_PRESS), input.detail, input.time});
  }
}

}  // namespace vantorel::test
