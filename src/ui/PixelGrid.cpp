#include "PixelGrid.h"

#include <algorithm>
#include <cmath>

namespace vantorel {

namespace {

/// A half goes the same way everywhere, so that what is equally wide stays equally wide.
double nearestEdge(double position) { return std::floor(position + 0.5); }

}  // namespace

PixelGrid::PixelGrid(const QPainter& painter)
    : toDevice(painter.deviceTransform()), fromDevice(toDevice.inverted()) {}

QRectF PixelGrid::snapped(const QRectF& rect) const {
  const QRectF device = toDevice.mapRect(rect);
  const QPointF upperLeft(nearestEdge(device.left()), nearestEdge(device.top()));
  const QPointF lowerRight(nearestEdge(device.right()), nearestEdge(device.bottom()));
  return fromDevice.mapRect(QRectF(upperLeft, lowerRight));
}

double PixelGrid::lineWidth(double width) const {
  const double scale = toDevice.m11();
  return std::max(1.0, nearestEdge(width * scale)) / scale;
}

void fillSharp(QPainter& painter, const QRectF& rect, const QColor& color) {
  const bool antialiased = painter.testRenderHint(QPainter::Antialiasing);
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.fillRect(PixelGrid(painter).snapped(rect), color);
  painter.setRenderHint(QPainter::Antialiasing, antialiased);
}

QRectF insideOutline(const QPainter& painter, const QRectF& rect, double width) {
  const PixelGrid grid(painter);
  const double line = grid.lineWidth(width);
  return grid.snapped(rect).adjusted(line, line, -line, -line);
}

void paintOutline(QPainter& painter, const QRectF& rect, double width, const QColor& color) {
  const QRectF outer = PixelGrid(painter).snapped(rect);
  const QRectF inner = insideOutline(painter, rect, width);
  if (inner.isEmpty()) {
    fillSharp(painter, outer, color);
    return;
  }
  fillSharp(painter, QRectF(outer.topLeft(), QPointF(outer.right(), inner.top())), color);
  fillSharp(painter, QRectF(QPointF(outer.left(), inner.bottom()), outer.bottomRight()), color);
  fillSharp(painter, QRectF(QPointF(outer.left(), inner.top()), inner.bottomLeft()), color);
  fillSharp(painter, QRectF(inner.topRight(), QPointF(outer.right(), inner.bottom())), color);
}

}  // namespace vantorel
