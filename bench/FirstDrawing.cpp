#include "FirstDrawing.h"

#include <xcb/damage.h>

#include <stdexcept>

#include "XcbReply.h"

namespace vantorel {

namespace {

/// Smaller windows are helpers of the toolkit.
constexpr int smallestMainWindow = 500;

}  // namespace

FirstDrawing::FirstDrawing(const std::optional<std::string>& display) : connection(display) {
  const XcbReply<xcb_damage_query_version_reply_t> version(xcb_damage_query_version_reply(
      connection.handle(), xcb_damage_query_version(connection.handle(), 1, 1), nullptr));
  const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
  xcb_change_window_attributes(connection.handle(), connection.root(), XCB_CW_EVENT_MASK, &mask);
  connection.sync();
}

/// Not later than when it is made: to be watched from then on counts as drawing for a window that can be seen
/// already.
void FirstDrawing::watch(const xcb_create_notify_event_t& created) const {
  if (created.width < smallestMainWindow) return;
  xcb_damage_create(connection.handle(), xcb_generate_id(connection.handle()), created.window,
                    XCB_DAMAGE_REPORT_LEVEL_NON_EMPTY);
  connection.flush();
}

xcb_window_t FirstDrawing::wait() const {
  const auto* const damage = xcb_get_extension_data(connection.handle(), &xcb_damage_id);
  while (const XcbReply<xcb_generic_event_t> event{xcb_wait_for_event(connection.handle())}) {
    const auto type = event->response_type & 0x7FU;
    if (type == XCB_CREATE_NOTIFY) watch(reinterpret_cast<const xcb_create_notify_event_t&>(*event));
    if (type == static_cast<unsigned>(damage->first_event + XCB_DAMAGE_NOTIFY))
      return reinterpret_cast<const xcb_damage_notify_event_t&>(*event).drawable;
  }
  throw std::runtime_error("the connection to the X server is lost");
}

}  // namespace vantorel
