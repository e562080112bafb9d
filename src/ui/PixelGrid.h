#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>
#include <QTransform>

namespace vantorel {

/// The device pixels below a painter. What is aligned to them is sharp at every scale, 1.25 and 1.5 included;
/// all coordinates are the painter's own points.
class PixelGrid {
 public:
  /// The grid of `painter` as it is transformed now: by translation and scale only.
  explicit PixelGrid(const QPainter& painter);

  /// `rect` with each edge moved to the nearest edge between pixels.
  QRectF snapped(const QRectF& rect) const;

  /// `width` as a whole number of pixels, at least one.
  double lineWidth(double width) const;

 private:
  QTransform toDevice;
  QTransform fromDevice;
};

/// Fills `rect`, aligned to pixels, without antialiasing.
void fillSharp(QPainter& painter, const QRectF& rect, const QColor& color);

/// What an outline of `rect` as `paintOutline` draws it leaves inside.
QRectF insideOutline(const QPainter& painter, const QRectF& rect, double width);

/// Draws the outline of `rect` inside its bounds, with square corners, aligned to pixels.
void paintOutline(QPainter& painter, const QRectF& rect, double width, const QColor& color);

}  // namespace vantorel
