#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>

namespace vantorel {

/// A shadow without blur: the shape itself, moved right and down.
struct HardShadow {
  QColor color;
  double opacity;  ///< 0 to 1
  int offset;      ///< points to the right and points down
};

/// Draws what is seen of the shadow of `rect` beside it; `rect` is larger than the offset.
void paintHardShadow(QPainter& painter, const QRectF& rect, const HardShadow& shadow);

}  // namespace vantorel
