#pragma once

#include <QObject>
#include <QSystemTrayIcon>

#include "MainQueue.h"
#include "StatusFace.h"
#include "StatusMenu.h"

namespace vantorel {

/// A status item as a status-notifier item on the session bus, read by the desktop's panel.
///
/// Qt decides once for the whole process whether it offers its icons on the session bus: when the first one
/// is made. So none may be made before a host of such items is there.
class NotifierFace : public QObject, public StatusFace {
 public:
  explicit NotifierFace(MainQueue& mainQueue);

  void setIcon(const TemplateIcon& icon, const QString& description) override;
  void setMenu(const Menu& menu) override;

 private:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void drawIcon();
  void openMenu();

  TemplateIcon symbol;
  StatusMenu exported;  ///< what the host reads; kept, as a host keeps the place where it found the menu
  StatusMenu popup;     ///< what a plain click opens
  QSystemTrayIcon item;
};

}  // namespace vantorel
