#include "FirstDrawing.h"

#include <poll.h>
#include <xcb/damage.h>

namespace vantorel {

namespace {

/// Smaller windows are helpers of the toolkit.
constexpr int smallestMainWindow = 500;

constexpr int patience = 30000;  // milliseconds without any event

}  // namespace

FirstDrawing::FirstDrawing(const std::optional<std::string>& display) : connection(display) {
  const XcbReply<xcb_damage_query_version_reply_t> version(xcb_damage_query_version_reply(
      connection.handle(), xcb_damage_query_version(connection.handle(), 1, 1), nullptr));
  if (!receive(XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT)) receive(XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY);
}

bool FirstDrawing::receive(std::uint32_t events) const {
  const XcbReply<xcb_generic_error_t> refusal(xcb_request_check(
      connection.handle(), xcb_change_window_attributes_checked(connection.handle(), connection.root(),
                                                                XCB_CW_EVENT_MASK, &events)));
  return refusal == nullptr;
}

void FirstDrawing::watch(xcb_window_t window, int width) const {
  if (width < smallestMainWindow) return;
  xcb_damage_create(connection.handle(), xcb_generate_id(connection.handle()), window,
                    XCB_DAMAGE_REPORT_LEVEL_NON_EMPTY);
  const XcbReply<xcb_get_window_attributes_reply_t> attributes(xcb_get_window_attributes_reply(
      connection.handle(), xcb_get_window_attributes(connection.handle(), window), nullptr));
  if (attributes && attributes->map_state != XCB_MAP_STATE_UNMAPPED) throw WatchedTooLate();
}

void FirstDrawing::map(xcb_window_t window) const {
  const XcbReply<xcb_get_geometry_reply_t> geometry(
      xcb_get_geometry_reply(connection.handle(), xcb_get_geometry(connection.handle(), window), nullptr));
  if (geometry) watch(window, geometry->width);
  xcb_map_window(connection.handle(), window);
  connection.flush();
}

/// As the program wants it.
void FirstDrawing::configure(const xcb_configure_request_event_t& wish) const {
  const xcb_configure_window_value_list_t values{
      wish.x, wish.y, wish.width, wish.height, wish.border_width, wish.sibling, wish.stack_mode};
  xcb_configure_window_aux(connection.handle(), wish.window, wish.value_mask, &values);
  connection.flush();
}

XcbReply<xcb_generic_event_t> FirstDrawing::nextEvent() const {
  while (!connection.isLost()) {
    if (XcbReply<xcb_generic_event_t> event{xcb_poll_for_event(connection.handle())}) return event;
    pollfd server{connection.fileDescriptor(), POLLIN, 0};
    if (poll(&server, 1, patience) == 0) throw std::runtime_error("nothing is drawn");
  }
  throw std::runtime_error("the connection to the X server is lost");
}

xcb_window_t FirstDrawing::wait() const {
  const auto* const damage = xcb_get_extension_data(connection.handle(), &xcb_damage_id);
  while (true) {
    const XcbReply<xcb_generic_event_t> event = nextEvent();
    const auto type = event->response_type & 0x7FU;
    if (type == XCB_CREATE_NOTIFY) {
      const auto& created = reinterpret_cast<const xcb_create_notify_event_t&>(*event);
      watch(created.window, created.width);
    }
    if (type == XCB_MAP_REQUEST) map(reinterpret_cast<const xcb_map_request_event_t&>(*event).window);
    if (type == XCB_CONFIGURE_REQUEST)
      configure(reinterpret_cast<const xcb_configure_request_event_t&>(*event));
    if (type == static_cast<unsigned>(damage->first_event + XCB_DAMAGE_NOTIFY))
      return reinterpret_cast<const xcb_damage_notify_event_t&>(*event).drawable;
  }
}

}  // namespace vantorel
