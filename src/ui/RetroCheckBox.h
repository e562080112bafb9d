#pragma once

#include <QCheckBox>
#include <optional>

#include "MeasuredText.h"

namespace vantorel {

/// A check box in the style of the window: a square with a check mark of our own, and a label in the caption
/// size and the heaviest weight that wraps. A click anywhere on it switches it.
class RetroCheckBox : public QCheckBox {
 public:
  explicit RetroCheckBox(const QString& text = {}, QWidget* parent = nullptr);

  /// The square, in the widget's coordinates.
  QRect boxRect() const;

  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  bool hitButton(const QPoint& position) const override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QSize sizeAround(double textWidth, double textHeight) const;
  const MeasuredText& measured() const { return upToDate(measurement, text(), font()); }

  mutable std::optional<MeasuredText> measurement;
};

}  // namespace vantorel
