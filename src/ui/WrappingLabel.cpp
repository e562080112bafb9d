#include "WrappingLabel.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "WrappedText.h"

namespace vantorel {

namespace {

/// A word longer than this does not widen what holds it: it is parted instead.
constexpr double longestKeptWord = 60;

int roundedUp(double length) { return static_cast<int>(std::ceil(length)); }

}  // namespace

WrappingLabel::WrappingLabel(const QFont& font, const QColor& color, QWidget* parent)
    : QLabel(parent), textColor(color) {
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  setFont(font);
  QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
}

void WrappingLabel::setColor(const QColor& color) {
  if (color == textColor) return;
  textColor = color;
  update();
}

void WrappingLabel::reserveLines(int lines) {
  reservedLines = lines;
  updateGeometry();
}

void WrappingLabel::reserveFor(const QStringList& alternatives) {
  reservedTexts = alternatives;
  updateGeometry();
}

double WrappingLabel::textHeight(const QString& text, double width) const {
  return WrappedText(text, font(), width).size().height();
}

int WrappingLabel::heightForWidth(int width) const {
  const QMargins margins = contentsMargins();
  const double room = width - margins.left() - margins.right();
  double height = textHeight(text(), room);
  if (reservedLines > 0) height = std::max(height, textHeight(QString(reservedLines - 1, u'\n'), room));
  for (const QString& alternative : reservedTexts) height = std::max(height, textHeight(alternative, room));
  return roundedUp(height) + margins.top() + margins.bottom();
}

QSize WrappingLabel::sizeHint() const {
  const QMargins margins = contentsMargins();
  double natural = unbrokenWidth(text(), font());
  for (const QString& alternative : reservedTexts) {
    natural = std::max(natural, unbrokenWidth(alternative, font()));
  }
  const int width = roundedUp(natural) + margins.left() + margins.right();
  return {width, heightForWidth(width)};
}

QSize WrappingLabel::minimumSizeHint() const {
  const QMargins margins = contentsMargins();
  double widest = widestPart(text(), font());
  for (const QString& alternative : reservedTexts) {
    widest = std::max(widest, widestPart(alternative, font()));
  }
  const int width = roundedUp(std::min(widest, longestKeptWord)) + margins.left() + margins.right();
  return {width, roundedUp(QFontMetricsF(font()).height()) + margins.top() + margins.bottom()};
}

void WrappingLabel::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QRectF area = contentsRect();
  WrappedText(text(), font(), area.width(), alignment()).paint(painter, area, textColor);
}

}  // namespace vantorel
