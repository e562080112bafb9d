#pragma once

#include <QColor>
#include <QPainter>
#include <QPointF>
#include <QSize>
#include <QSizeF>
#include <QWidget>
#include <vector>

namespace vantorel {

/// The upper left corners of the dots of a layer of `size` points: every 20 points from its own corner on.
/// None if the size is empty.
std::vector<QPointF> dotGridPoints(QSizeF size);

/// Draws the dots of a layer of `size` points, 2 points wide and black at 0.05, on the colour `ground`.
void paintDotGrid(QPainter& painter, QSize size, const QColor& ground);

/// The page of the window: its colour with the dot grid on it. It lies behind everything else.
class DotGridBackground : public QWidget {
 public:
  explicit DotGridBackground(QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace vantorel
