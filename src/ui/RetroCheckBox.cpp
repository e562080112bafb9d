#include "RetroCheckBox.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "AppTheme.h"
#include "Icons.h"
#include "PixelGrid.h"
#include "Typography.h"
#include "WrappedText.h"

namespace vantorel {

namespace {

constexpr int boxSize = 14;
constexpr int outlineWidth = 2;
constexpr int gap = 5;          // between the square and the label
constexpr int frameMargin = 3;  // around both, for the focus frame
constexpr int focusWidth = 2;

int roundedUp(double length) { return static_cast<int>(std::ceil(length)); }

}  // namespace

RetroCheckBox::RetroCheckBox(const QString& text, QWidget* parent) : QCheckBox(text, parent) {
  setFont(monospaced(captionSize, QFont::Black));
  setAttribute(Qt::WA_Hover);  // to be drawn anew when the pointer comes and goes
  QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
}

QRect RetroCheckBox::boxRect() const {
  const double line = std::max(Lettering(font()).lineHeight(), double{boxSize});
  return {frameMargin, frameMargin + qRound((line - boxSize) / 2), boxSize, boxSize};
}

QSize RetroCheckBox::sizeAround(double textWidth, double textHeight) const {
  return {roundedUp(textWidth) + boxSize + gap + 2 * frameMargin,
          roundedUp(std::max(textHeight, double{boxSize})) + 2 * frameMargin};
}

int RetroCheckBox::heightForWidth(int width) const {
  const int room = width - sizeAround(0, 0).width();
  return sizeAround(room, measured().heightIn(room)).height();
}

QSize RetroCheckBox::sizeHint() const {
  const int width = sizeAround(measured().unbrokenWidth(), 0).width();
  return {width, heightForWidth(width)};
}

QSize RetroCheckBox::minimumSizeHint() const {
  return {sizeAround(measured().widestPart(), 0).width(), sizeHint().height()};
}

bool RetroCheckBox::hitButton(const QPoint& position) const { return rect().contains(position); }

void RetroCheckBox::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QRectF box = boxRect();
  const QColor line = isEnabled() ? AppTheme::borderColor() : AppTheme::secondaryText();
  const bool touched = isEnabled() && (isDown() || underMouse());
  const QColor empty = touched ? AppTheme::background() : AppTheme::cardBackground();
  fillSharp(painter, box, isChecked() && isEnabled() ? AppTheme::success() : empty);
  paintOutline(painter, box, outlineWidth, line);
  if (isChecked()) {
    constexpr int inset = outlineWidth + 1;
    paintIcon(painter, Icon::checkMark, box.adjusted(inset, inset, -inset, -inset), line);
  }
  QRectF area = rect().adjusted(frameMargin + boxSize + gap, frameMargin, -frameMargin, -frameMargin);
  const WrappedText label(text(), Lettering(font()), area.width());
  if (label.lineCount() == 1) area.translate(0, box.center().y() - area.top() - label.size().height() / 2);
  label.paint(painter, area, isEnabled() ? AppTheme::text() : AppTheme::secondaryText());
  if (hasFocus()) paintOutline(painter, rect(), focusWidth, AppTheme::secondaryAccent());
}

}  // namespace vantorel
