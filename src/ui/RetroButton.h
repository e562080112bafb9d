#pragma once

#include <QPushButton>
#include <optional>

#include "Icons.h"
#include "MeasuredText.h"

namespace vantorel {

/// A push button in the style of the window: a white label on a colour with a black outline and a hard
/// shadow. While it is held down it lies on its shadow. The label breaks into lines where the button is
/// narrow; the button's height follows its width.
class RetroButton : public QPushButton {
 public:
  explicit RetroButton(const QColor& color, const QString& text = {}, QWidget* parent = nullptr);

  void setColor(const QColor& color);
  QColor color() const { return fill; }

  /// A symbol before the text, or none.
  void setSymbol(std::optional<Icon> icon);

  /// The button without its shadow, in the widget's coordinates, while it is not held down.
  QRect plateRect() const;

  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  int symbolRoom() const;
  QSize sizeAround(double textWidth, double textHeight) const;
  const MeasuredText& measured() const { return upToDate(measurement, text(), font()); }
  QColor currentFill() const;
  void paintLabel(QPainter& painter, const QRectF& area) const;

  QColor fill;
  std::optional<Icon> symbol;
  mutable std::optional<MeasuredText> measurement;
};

}  // namespace vantorel
