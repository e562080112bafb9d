#pragma once

#include <QAbstractButton>
#include <QKeyEvent>

namespace vantorel {

/// Lets the Return key click `button`, once however long it is held: what a click opens would take the next
/// one. Answers whether `event` was of that key.
inline bool clickByReturnKey(QAbstractButton& button, const QKeyEvent& event) {
  if (event.key() != Qt::Key_Return && event.key() != Qt::Key_Enter) return false;
  if (!event.isAutoRepeat()) button.click();
  return true;
}

}  // namespace vantorel
