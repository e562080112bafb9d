#include "HeldKeyFilter.h"

namespace vantorel {

bool HeldKeyFilter::eventFilter(QObject* /*watched*/, QEvent* event) {
  if (event->type() == QEvent::KeyPress) return isRepeat(*static_cast<const QKeyEvent*>(event));
  if (event->type() == QEvent::KeyRelease) {
    const auto* const release = static_cast<const QKeyEvent*>(event);
    releasedKey = release->key();
    releaseTime = release->timestamp();
  }
  return false;
}

bool HeldKeyFilter::isRepeat(const QKeyEvent& press) const {
  const bool pressesButtons =
      press.key() == Qt::Key_Return || press.key() == Qt::Key_Enter || press.key() == Qt::Key_Space;
  return pressesButtons && press.key() == releasedKey && press.timestamp() == releaseTime && releaseTime != 0;
}

}  // namespace vantorel
