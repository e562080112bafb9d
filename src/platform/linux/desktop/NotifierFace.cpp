#include "NotifierFace.h"

#include <QCursor>
#include <QEvent>
#include <QGuiApplication>
#include <QPalette>

#include "X11Session.h"

namespace vantorel {

NotifierFace::NotifierFace(MainQueue& mainQueue) : exported(mainQueue), popup(mainQueue) {
  item.setContextMenu(&exported);
  connect(&item, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
    if (reason == QSystemTrayIcon::Trigger) openMenu();
  });
  qGuiApp->installEventFilter(this);
}

void NotifierFace::setIcon(const TemplateIcon& icon, const QString& description) {
  symbol = icon;
  item.setToolTip(description);
  drawIcon();
  item.show();
}

void NotifierFace::setMenu(const Menu& menu) {
  exported.setEntries(menu);
  popup.setEntries(menu);
}

bool NotifierFace::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::ApplicationPaletteChange && watched == qGuiApp) drawIcon();
  return false;
}

/// The host does not tell how its bar looks; most bars go with the desktop's colours.
void NotifierFace::drawIcon() {
  item.setIcon(symbol.icon(QGuiApplication::palette().color(QPalette::Window)));
}

/// A plain click opens the menu too. Only X lets a program place a window where the pointer is.
void NotifierFace::openMenu() {
  if (X11Session::current()) popup.popup(QCursor::pos());
}

}  // namespace vantorel
