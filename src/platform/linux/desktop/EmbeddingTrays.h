#pragma once

#include <xcb/xcb.h>

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <optional>

#include "Published.h"
#include "X11Session.h"

namespace vantorel {

/// Watches the X server for a system tray that embeds icon windows: the owner of the tray selection. Main
/// thread.
class EmbeddingTrays : public QAbstractNativeEventFilter {
 public:
  EmbeddingTrays();
  EmbeddingTrays(const EmbeddingTrays&) = delete;
  EmbeddingTrays& operator=(const EmbeddingTrays&) = delete;
  ~EmbeddingTrays() override;

  /// The window of the tray, or XCB_NONE. A tray that takes the place of another is told as none in between.
  const Published<xcb_window_t>& manager() const { return managerWindow; }

  bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

 private:
  void lookSoon();
  void look();

  std::optional<X11Session> session;
  xcb_atom_t selection = XCB_ATOM_NONE;
  xcb_atom_t managerMessage = XCB_ATOM_NONE;
  Published<xcb_window_t> managerWindow{XCB_NONE};
  QObject context;  // calls that are queued for it end with this object
};

}  // namespace vantorel
