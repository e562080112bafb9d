#include "StatusMenu.h"

#include <QAction>
#include <QKeySequence>

namespace vantorel {
namespace {

QString actionText(const std::string& title) {
  return QString::fromStdString(title).replace(QLatin1Char('&'), QLatin1String("&&"));
}

}  // namespace

void StatusMenu::setEntries(const Menu& entries) {
  clear();
  for (const MenuItem& entry : entries) addEntry(entry);
}

void StatusMenu::addEntry(const MenuItem& entry) {
  if (entry.isSeparator()) {
    addSeparator();
    return;
  }
  QAction* action = addAction(actionText(entry.title));
  action->setEnabled(entry.isEnabled);
  if (!entry.keyEquivalent.empty()) {
    action->setShortcut(
        QKeySequence(QLatin1String("Meta+") + QString::fromStdString(entry.keyEquivalent).toUpper()));
  }
  if (entry.action) {
    connect(action, &QAction::triggered, this, [this, run = entry.action] { queue.post(run); });
  }
}

void StatusMenu::keyPressEvent(QKeyEvent* event) {
  const QKeySequence pressed(event->keyCombination());
  for (QAction* action : actions()) {
    if (action->shortcut() != pressed || action->shortcut().isEmpty() || !action->isEnabled()) continue;
    event->accept();
    close();
    action->trigger();
    return;
  }
  QMenu::keyPressEvent(event);
}

}  // namespace vantorel
