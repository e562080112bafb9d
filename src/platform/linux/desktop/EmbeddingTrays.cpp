#include "EmbeddingTrays.h"

#include <QCoreApplication>
#include <string>

namespace vantorel {

EmbeddingTrays::EmbeddingTrays() : session(X11Session::current()) {
  if (!session) return;
  selection = session->atom("_NET_SYSTEM_TRAY_S" + std::to_string(session->screenNumber()));
  managerMessage = session->atom("MANAGER");
  QCoreApplication::instance()->installNativeEventFilter(this);
  look();
}

EmbeddingTrays::~EmbeddingTrays() {
  if (session) QCoreApplication::instance()->removeNativeEventFilter(this);
}

bool EmbeddingTrays::nativeEventFilter(const QByteArray& /*eventType*/, void* message, qintptr* /*result*/) {
  const auto* event = static_cast<const xcb_generic_event_t*>(message);
  switch (event->response_type & 0x7F) {
    case XCB_CLIENT_MESSAGE: {
      const auto* announcement = static_cast<const xcb_client_message_event_t*>(message);
      if (announcement->type == managerMessage && announcement->data.data32[1] == selection) lookSoon();
      break;
    }
    case XCB_DESTROY_NOTIFY:
      if (static_cast<const xcb_destroy_notify_event_t*>(message)->window == managerWindow.get()) lookSoon();
      break;
    default:
      break;
  }
  return false;
}

/// Not within a filter: those who are told may add and remove filters.
void EmbeddingTrays::lookSoon() {
  QMetaObject::invokeMethod(
      &context, [this] { look(); }, Qt::QueuedConnection);
}

void EmbeddingTrays::look() {
  // The owner must not go between being found and being watched.
  xcb_grab_server(session->connection());
  const xcb_window_t owner = session->selectionOwner(selection);
  if (owner != XCB_NONE) {
    const std::uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(session->connection(), owner, XCB_CW_EVENT_MASK, &mask);
  }
  xcb_ungrab_server(session->connection());
  xcb_flush(session->connection());

  if (owner == managerWindow.get()) return;
  if (managerWindow.get() != XCB_NONE) managerWindow = XCB_NONE;
  if (owner != XCB_NONE) managerWindow = owner;
}

}  // namespace vantorel
