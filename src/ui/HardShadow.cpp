#include "HardShadow.h"

#include <algorithm>

#include "AppTheme.h"
#include "PixelGrid.h"

namespace vantorel {

namespace {

/// In pixels. Qt shares out higher fills that the ground shines through among threads: for a narrow one that
/// takes longer than to draw it.
constexpr double highestFill = 90;

/// `rect` is aligned to the pixels, and so are all pieces.
void fillInPieces(QPainter& painter, const QRectF& rect, const QColor& color) {
  const double highest = highestFill / painter.deviceTransform().m22();
  for (double top = rect.top(); top < rect.bottom(); top += highest) {
    const double bottom = std::min(top + highest, rect.bottom());
    fillSharp(painter, QRectF(QPointF(rect.left(), top), QPointF(rect.right(), bottom)), color);
  }
}

}  // namespace

void paintHardShadow(QPainter& painter, const QRectF& rect, const HardShadow& shadow) {
  const QColor color = AppTheme::faded(shadow.color, shadow.opacity);
  const PixelGrid grid(painter);
  const QRectF shape = grid.snapped(rect);
  const QRectF moved = grid.snapped(rect.translated(shadow.offset, shadow.offset));
  fillInPieces(painter, QRectF(QPointF(shape.right(), moved.top()), QPointF(moved.right(), shape.bottom())),
               color);
  fillSharp(painter, QRectF(QPointF(moved.left(), shape.bottom()), moved.bottomRight()), color);
}

}  // namespace vantorel
