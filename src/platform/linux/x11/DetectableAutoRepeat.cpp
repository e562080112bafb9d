#include "DetectableAutoRepeat.h"

#include "XcbReply.h"

// The header is meant for C and names a member with a word of C++.
#define explicit explicitComponents
#include <xcb/xkb.h>
#undef explicit

namespace vantorel {

void useDetectableAutoRepeat(const XcbConnection& connection) {
  xcb_connection_t* const handle = connection.handle();
  if (!connection.has(xcb_xkb_id)) return;
  const XcbReply<xcb_xkb_use_extension_reply_t> extension(
      xcb_xkb_use_extension_reply(handle, xcb_xkb_use_extension(handle, 1, 0), nullptr));
  if (!extension || extension->supported == 0) return;
  constexpr std::uint32_t flag = XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT;
  const XcbReply<xcb_xkb_per_client_flags_reply_t> flags(xcb_xkb_per_client_flags_reply(
      handle, xcb_xkb_per_client_flags(handle, XCB_XKB_ID_USE_CORE_KBD, flag, flag, 0, 0, 0), nullptr));
}

}  // namespace vantorel
