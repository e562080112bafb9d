#include "HardShadow.h"

#include <algorithm>

#include "AppTheme.h"
#include "PixelGrid.h"

namespace vantorel {

namespace {

/// Qt shares out higher fills that the ground shines through among threads: for a narrow one that takes
/// longer than to draw it.
constexpr double highestFill = 40;

void fillInPieces(QPainter& painter, const QRectF& rect, const QColor& color) {
  for (double top = rect.top(); top < rect.bottom(); top += highestFill) {
    const double bottom = std::min(top + highestFill, rect.bottom());
    fillSharp(painter, QRectF(QPointF(rect.left(), top), QPointF(rect.right(), bottom)), color);
  }
}

}  // namespace

void paintHardShadow(QPainter& painter, const QRectF& rect, const HardShadow& shadow) {
  const QColor color = AppTheme::faded(shadow.color, shadow.opacity);
  const QRectF moved = rect.translated(shadow.offset, shadow.offset);
  fillInPieces(painter, QRectF(QPointF(rect.right(), moved.top()), QPointF(moved.right(), rect.bottom())),
               color);
  fillSharp(painter, QRectF(QPointF(moved.left(), rect.bottom()), moved.bottomRight()), color);
}

}  // namespace vantorel
