#pragma once

#include <QColor>
#include <QFont>
#include <QLabel>
#include <QStringList>
#include <vector>

#include "MeasuredText.h"

namespace vantorel {

/// A text that wraps within any width, so that nothing is clipped or elided. Its height follows its width;
/// room can be reserved for other texts, so that nothing around it moves when the text changes. Set the text
/// with `setText`; assistive technology reads it as static text.
class WrappingLabel : public QLabel {
 public:
  WrappingLabel(const QFont& font, const QColor& color, QWidget* parent = nullptr);

  void setColor(const QColor& color);
  QColor color() const { return textColor; }

  /// Keeps at least the height of `lines` lines of the font.
  void reserveLines(int lines);

  /// Keeps at least the height that the tallest of `alternatives` has at the present width, whatever that is.
  void reserveFor(const QStringList& alternatives);

  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const std::vector<MeasuredText>& measuredTexts() const;

  QColor textColor;
  int reservedLines = 0;
  QStringList reservedTexts;
  /// The text and those that room is kept for, as they were when last asked for.
  mutable std::vector<MeasuredText> measured;
};

}  // namespace vantorel
