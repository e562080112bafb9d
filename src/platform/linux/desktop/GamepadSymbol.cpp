#include "GamepadSymbol.h"

#include <QTransform>

#include <algorithm>

namespace vantorel {
namespace {

constexpr qreal designWidth = 60;
constexpr qreal designHeight = 40;

/// The outline: a body with shoulders and two grips.
QPainterPath body() {
  QPainterPath path(QPointF(16, 3));
  path.cubicTo(20, 3, 21, 6, 25, 6);
  path.lineTo(35, 6);
  path.cubicTo(39, 6, 40, 3, 44, 3);
  path.cubicTo(54, 3, 59, 19, 59, 29);
  path.cubicTo(59, 35, 56, 38, 52.5, 38);
  path.cubicTo(46, 38, 44, 28, 38, 28);
  path.lineTo(22, 28);
  path.cubicTo(16, 28, 14, 38, 7.5, 38);
  path.cubicTo(4, 38, 1, 35, 1, 29);
  path.cubicTo(1, 19, 6, 3, 16, 3);
  path.closeSubpath();
  return path;
}

/// The directional cross on the left and two buttons on the right.
QPainterPath controls() {
  QPainterPath path;
  path.setFillRule(Qt::WindingFill);
  path.addRect(QRectF(15.5, 10, 5, 13));
  path.addRect(QRectF(11.5, 14, 13, 5));
  path.addEllipse(QPointF(38, 19.5), 3.2, 3.2);
  path.addEllipse(QPointF(45.5, 13.5), 3.2, 3.2);
  return path;
}

}  // namespace

QPainterPath gamepadPath(const QRectF& bounds) {
  const qreal scale = std::min(bounds.width() / designWidth, bounds.height() / designHeight);
  QTransform transform;
  transform.translate(bounds.center().x(), bounds.center().y());
  transform.scale(scale, scale);
  transform.translate(-designWidth / 2, -designHeight / 2);
  return transform.map(body().subtracted(controls()));
}

}  // namespace vantorel
