#include "QtApplication.h"

#include <QEvent>
#include <QGuiApplication>

#include "TaskBarEntry.h"

namespace vantorel {
namespace {

/// Whether a window manager would list the window at all: popups and icons in a tray it does not.
bool isListable(const QWindow& window) {
  const bool isOrdinary = window.type() == Qt::Window || window.type() == Qt::Dialog;
  return window.isTopLevel() && isOrdinary && !window.flags().testFlag(Qt::X11BypassWindowManagerHint);
}

}  // namespace

QtApplication::QtApplication(const StatusBar& statusBar) : bar(statusBar) {
  barChange = bar.isPresent().observe([this] { apply(); });
  qGuiApp->installEventFilter(this);
}

void QtApplication::setActivationPolicy(ActivationPolicy newPolicy) {
  policy = newPolicy;
  apply();
}

void QtApplication::terminate() {
  QMetaObject::invokeMethod(
      qGuiApp, [] { QCoreApplication::exit(0); }, Qt::QueuedConnection);
}

void QtApplication::apply() {
  const bool listed = policy == ActivationPolicy::regular || !bar.isPresent();
  if (listed == windowsAreListed) return;
  windowsAreListed = listed;
  for (const QWindow* window : QGuiApplication::topLevelWindows()) {
    if (window->isVisible() && isListable(*window)) TaskBarEntry(*window).setListed(listed);
  }
}

/// Qt tells of the showing before the window is mapped. A window manager forgets the states of a hidden
/// window.
bool QtApplication::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::Show) return false;
  const auto* window = qobject_cast<const QWindow*>(watched);
  if (window != nullptr && isListable(*window)) TaskBarEntry(*window).setListedWhenShown(windowsAreListed);
  return false;
}

}  // namespace vantorel
