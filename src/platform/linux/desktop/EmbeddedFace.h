#pragma once

#include <xcb/xcb.h>

#include <QAbstractNativeEventFilter>
#include <QBasicTimer>
#include <QRasterWindow>
#include <optional>

#include "MainQueue.h"
#include "StatusFace.h"
#include "StatusMenu.h"
#include "X11Session.h"

namespace vantorel {

/// A status item as an icon window in an embedding tray. Qt's own class is not used here, as it could no
/// longer offer an item on the session bus later (see NotifierFace).
class EmbeddedFace : public QRasterWindow, public QAbstractNativeEventFilter, public StatusFace {
 public:
  /// Docks in the tray whose window is `manager`.
  EmbeddedFace(MainQueue& mainQueue, const X11Session& x11, xcb_window_t manager);
  EmbeddedFace(const EmbeddedFace&) = delete;
  EmbeddedFace& operator=(const EmbeddedFace&) = delete;
  ~EmbeddedFace() override;

  void setIcon(const TemplateIcon& icon, const QString& description) override;
  void setMenu(const Menu& menu) override;

  bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

 private:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void requestDock(xcb_window_t manager);
  bool trayIsTranslucent(xcb_window_t manager) const;
  QImage barBehind();

  X11Session session;
  bool isTranslucent;
  TemplateIcon symbol;
  QString toolTip;
  StatusMenu popup;
  QBasicTimer toolTipDelay;
};

}  // namespace vantorel
