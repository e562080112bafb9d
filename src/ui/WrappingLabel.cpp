#include "WrappingLabel.h"

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
  measured.clear();
  updateGeometry();
}

void WrappingLabel::reserveFor(const QStringList& alternatives) {
  reservedTexts = alternatives;
  measured.clear();
  updateGeometry();
}

/// Layouts ask many times before a text changes, and the other texts stay when it does.
const std::vector<MeasuredText>& WrappingLabel::measuredTexts() const {
  if (!measured.empty() && measured.front().isOf(text(), font())) return measured;
  if (!measured.empty() && measured.front().hasFont(font())) {
    measured.front() = MeasuredText(text(), Lettering(font()));
    return measured;
  }
  const Lettering lettering(font());
  measured.clear();
  measured.emplace_back(text(), lettering);
  for (const QString& alternative : reservedTexts) measured.emplace_back(alternative, lettering);
  if (reservedLines > 0) measured.emplace_back(QString(reservedLines - 1, u'\n'), lettering);
  return measured;
}

int WrappingLabel::heightForWidth(int width) const {
  const QMargins margins = contentsMargins();
  const double room = width - margins.left() - margins.right();
  double height = 0;
  for (const MeasuredText& one : measuredTexts()) height = std::max(height, one.heightIn(room));
  return roundedUp(height) + margins.top() + margins.bottom();
}

QSize WrappingLabel::sizeHint() const {
  const QMargins margins = contentsMargins();
  double natural = 0;
  for (const MeasuredText& one : measuredTexts()) natural = std::max(natural, one.unbrokenWidth());
  const int width = roundedUp(natural) + margins.left() + margins.right();
  return {width, heightForWidth(width)};
}

QSize WrappingLabel::minimumSizeHint() const {
  const QMargins margins = contentsMargins();
  double widest = 0;
  for (const MeasuredText& one : measuredTexts()) {
    const bool canBeWider = one.unbrokenWidth() > widest && widest < longestKeptWord;
    if (canBeWider) widest = std::max(widest, one.widestPart());
  }
  const int width = roundedUp(std::min(widest, longestKeptWord)) + margins.left() + margins.right();
  return {width, roundedUp(Lettering(font()).lineHeight()) + margins.top() + margins.bottom()};
}

void WrappingLabel::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QRectF area = contentsRect();
  WrappedText(text(), Lettering(font()), area.width(), alignment()).paint(painter, area, textColor);
}

}  // namespace vantorel
