#pragma once

#include <QSlider>

namespace vantorel {

/// A slider in the style of the window over decimal numbers on a grid: the lowest, and from it on in steps to
/// the highest. Arrow keys move it by one step; `valueChanged` tells of every change. Its integral value
/// counts the steps above the lowest; assistive technology is told the decimal number.
class RetroSlider : public QSlider {
 public:
  RetroSlider(double lowestNumber, double highestNumber, double gridStep, QWidget* parent = nullptr);

  double decimalValue() const { return decimalAt(value()); }
  /// Moves to the grid point nearest to `number`, within the range.
  void setDecimalValue(double number);

  double lowest() const { return decimalAt(minimum()); }
  double highest() const { return decimalAt(maximum()); }
  double stepSize() const { return step; }

  /// The handle, in the widget's coordinates.
  QRectF handleRect() const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  double decimalAt(int steps) const { return from + steps * step; }
  void moveHandleTo(double x);

  double from;
  double step;
};

}  // namespace vantorel
