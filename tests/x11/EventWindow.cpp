#include "EventWindow.h"

#include <stdexcept>

#include "WaitUntil.h"
#include "XcbReply.h"

namespace vantorel::test {
namespace {

template <class Event>
std::string describe(const char* device, const xcb_generic_event_t& event, const char* change) {
  return std::string(device) + " " + std::to_string(reinterpret_cast<const Event&>(event).detail) + " " +
         change;
}

std::string describe(const xcb_generic_event_t& event) {
  switch (event.response_type) {
    case XCB_KEY_PRESS:
      return describe<xcb_key_press_event_t>("key", event, "down");
    case XCB_KEY_RELEASE:
      return describe<xcb_key_release_event_t>("key", event, "up");
    case XCB_BUTTON_PRESS:
      return describe<xcb_button_press_event_t>("button", event, "down");
    case XCB_BUTTON_RELEASE:
      return describe<xcb_button_release_event_t>("button", event, "up");
    default:
      return "";
  }
}

}  // namespace

EventWindow::EventWindow(const std::string& display) : connection(display) {
  xcb_connection_t* const handle = connection.handle();
  window = xcb_generate_id(handle);
  constexpr std::uint32_t events = XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_KEY_RELEASE |
                                   XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_RELEASE;
  xcb_create_window(handle, XCB_COPY_FROM_PARENT, window, connection.root(), 0, 0, 1280, 900, 0,
                    XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
  xcb_map_window(handle, window);
  // A window manager maps the window in its own time; before that it cannot have the focus.
  const bool isFocused = waitUntil([&] {
    xcb_set_input_focus(handle, XCB_INPUT_FOCUS_PARENT, window, XCB_CURRENT_TIME);
    return hasFocus();
  });
  if (!isFocused) throw std::runtime_error("the window did not get the focus");
  takeEvents();
}

std::vector<std::string> EventWindow::takeEvents() {
  connection.sync();
  std::vector<std::string> seen;
  while (const XcbReply<xcb_generic_event_t> event{xcb_poll_for_event(connection.handle())}) {
    if (std::string text = describe(*event); !text.empty()) seen.push_back(std::move(text));
  }
  return seen;
}

bool EventWindow::hasFocus() const {
  const XcbReply<xcb_get_input_focus_reply_t> reply(
      xcb_get_input_focus_reply(connection.handle(), xcb_get_input_focus(connection.handle()), nullptr));
  return reply && reply->focus == window;
}

}  // namespace vantorel::test
