#include "EmbeddedFace.h"

#include <QCursor>
#include <QGuiApplication>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QScreen>
#include <QTimerEvent>
#include <QToolTip>

namespace vantorel {
namespace {

constexpr int iconSize = 22;
constexpr int toolTipDelayInMilliseconds = 700;

constexpr std::uint32_t embeddingVersion = 0;
constexpr std::uint32_t embeddingMapped = 1;
constexpr std::uint32_t dockRequest = 0;

int depthOf(const X11Session& session, xcb_visualid_t visual) {
  for (auto screens = xcb_setup_roots_iterator(xcb_get_setup(session.connection())); screens.rem > 0;
       xcb_screen_next(&screens)) {
    for (auto depths = xcb_screen_allowed_depths_iterator(screens.data); depths.rem > 0;
         xcb_depth_next(&depths)) {
      for (auto visuals = xcb_depth_visuals_iterator(depths.data); visuals.rem > 0;
           xcb_visualtype_next(&visuals)) {
        if (visuals.data->visual_id == visual) return depths.data->depth;
      }
    }
  }
  return 0;
}

}  // namespace

EmbeddedFace::EmbeddedFace(MainQueue& mainQueue, const X11Session& x11, xcb_window_t manager)
    : session(x11), isTranslucent(trayIsTranslucent(manager)), popup(mainQueue) {
  QSurfaceFormat surface = format();
  surface.setAlphaBufferSize(isTranslucent ? 8 : 0);
  setFormat(surface);
  setFlags(Qt::FramelessWindowHint | Qt::X11BypassWindowManagerHint);
  setMinimumSize(QSize(iconSize, iconSize));
  resize(iconSize, iconSize);
  create();
  QCoreApplication::instance()->installNativeEventFilter(this);
  QCoreApplication::instance()->installEventFilter(this);
  requestDock(manager);
}

EmbeddedFace::~EmbeddedFace() { QCoreApplication::instance()->removeNativeEventFilter(this); }

void EmbeddedFace::setIcon(const TemplateIcon& icon, const QString& description) {
  symbol = icon;
  toolTip = description;
  setTitle(description);
  update();
}

void EmbeddedFace::setMenu(const Menu& menu) { popup.setEntries(menu); }

void EmbeddedFace::requestDock(xcb_window_t manager) {
  const auto window = static_cast<xcb_window_t>(winId());
  const xcb_atom_t information = session.atom("_XEMBED_INFO");
  session.setProperty(window, information, information, {embeddingVersion, embeddingMapped});
  if (!isTranslucent) {
    const std::uint32_t background = XCB_BACK_PIXMAP_PARENT_RELATIVE;
    xcb_change_window_attributes(session.connection(), window, XCB_CW_BACK_PIXMAP, &background);
  }
  session.send(manager, XCB_EVENT_MASK_NO_EVENT, manager, session.atom("_NET_SYSTEM_TRAY_OPCODE"),
               {XCB_CURRENT_TIME, dockRequest, window, 0, 0});
}

/// The window is shown once it is inside the tray: earlier it would show alone in a corner of the screen.
bool EmbeddedFace::nativeEventFilter(const QByteArray& /*eventType*/, void* message, qintptr* /*result*/) {
  const auto* any = static_cast<const xcb_generic_event_t*>(message);
  if ((any->response_type & 0x7F) != XCB_REPARENT_NOTIFY) return false;
  const auto* reparent = static_cast<const xcb_reparent_notify_event_t*>(message);
  if (reparent->window == winId()) setVisible(reparent->parent != session.root());
  return false;
}

bool EmbeddedFace::trayIsTranslucent(xcb_window_t manager) const {
  const auto visual = session.property(manager, session.atom("_NET_SYSTEM_TRAY_VISUAL"));
  return !visual.empty() && depthOf(session, visual.front()) == 32;
}

/// What the bar shows behind the icon; null where that cannot be seen.
QImage EmbeddedFace::barBehind() {
  if (isTranslucent || screen() == nullptr) return {};
  xcb_clear_area(session.connection(), 0, static_cast<xcb_window_t>(winId()), 0, 0, 0, 0);
  return screen()->grabWindow(winId(), 0, 0, width(), height()).toImage();
}

void EmbeddedFace::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QRect whole(QPoint(), size());
  QColor background = QGuiApplication::palette().color(QPalette::Window);
  if (const QImage behind = barBehind(); !behind.isNull()) {
    background = behind.pixelColor(0, 0);
    painter.drawImage(whole, behind);
  } else {
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(whole, isTranslucent ? QColor(Qt::transparent) : background);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
  }
  symbol.paint(painter, QRectF(whole), background);
}

void EmbeddedFace::mousePressEvent(QMouseEvent* /*event*/) {
  toolTipDelay.stop();
  QToolTip::hideText();
  popup.popup(QCursor::pos());
}

bool EmbeddedFace::event(QEvent* event) {
  if (event->type() == QEvent::Enter) toolTipDelay.start(toolTipDelayInMilliseconds, this);
  if (event->type() == QEvent::Leave) toolTipDelay.stop();
  return QRasterWindow::event(event);
}

void EmbeddedFace::timerEvent(QTimerEvent* event) {
  if (event->timerId() != toolTipDelay.timerId()) return QRasterWindow::timerEvent(event);
  toolTipDelay.stop();
  QToolTip::showText(QCursor::pos(), toolTip);
}

bool EmbeddedFace::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::ApplicationPaletteChange && watched == qGuiApp) update();
  return false;
}

}  // namespace vantorel
