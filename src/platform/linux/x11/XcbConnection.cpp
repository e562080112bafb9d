#include "XcbConnection.h"

#include <cstdlib>
#include <stdexcept>

#include "XcbReply.h"

namespace vantorel {
namespace {

std::string displayOfEnvironment() {
  const char* const name = std::getenv("DISPLAY");
  return name == nullptr ? "" : name;
}

xcb_window_t rootOf(xcb_connection_t* connection, int screenNumber) {
  xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
  for (; screens.rem > 1 && screenNumber > 0; --screenNumber) xcb_screen_next(&screens);
  return screens.data->root;
}

}  // namespace

XcbConnection::XcbConnection(const std::optional<std::string>& display) {
  const std::string name = display.value_or(displayOfEnvironment());
  if (name.empty()) throw std::runtime_error("DISPLAY is not set");
  int screenNumber = 0;
  handle_.reset(xcb_connect(name.c_str(), &screenNumber));
  if (isLost()) throw std::runtime_error("cannot open display " + name);
  root_ = rootOf(handle(), screenNumber);
}

bool XcbConnection::has(xcb_extension_t& extension) const {
  const xcb_query_extension_reply_t* const data = xcb_get_extension_data(handle(), &extension);
  return data != nullptr && data->present != 0;
}

void XcbConnection::sync() const {
  const XcbReply<xcb_get_input_focus_reply_t> reply(
      xcb_get_input_focus_reply(handle(), xcb_get_input_focus(handle()), nullptr));
}

}  // namespace vantorel
