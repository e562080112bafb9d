#include "RetroButton.h"

#include <algorithm>
#include <cmath>

#include "AppTheme.h"
#include "HardShadow.h"
#include "PixelGrid.h"
#include "Typography.h"
#include "WrappedText.h"

namespace vantorel {

namespace {

constexpr int labelSize = 10;
constexpr int sidePadding = 16;
constexpr int edgePadding = 8;
constexpr int outlineWidth = 2;
constexpr int focusWidth = 2;
constexpr int shadowOffset = 2;
constexpr double shadowOpacity = 0.1;
constexpr int symbolSize = 14;
constexpr int symbolGap = 6;

QColor mixed(const QColor& color, const QColor& other, double share) {
  const auto channel = [share](int own, int foreign) { return qRound(own + (foreign - own) * share); };
  return {channel(color.red(), other.red()), channel(color.green(), other.green()),
          channel(color.blue(), other.blue())};
}

int roundedUp(double length) { return static_cast<int>(std::ceil(length)); }

}  // namespace

RetroButton::RetroButton(const QColor& color, const QString& text, QWidget* parent)
    : QPushButton(text, parent), fill(color) {
  setFont(monospaced(labelSize, QFont::Bold));
  setAttribute(Qt::WA_Hover);  // to be drawn anew when the pointer comes and goes
  setAutoDefault(true);        // the Return key presses it wherever it stands
  QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
}

void RetroButton::setColor(const QColor& color) {
  if (color == fill) return;
  fill = color;
  update();
}

void RetroButton::setSymbol(std::optional<Icon> icon) {
  symbol = icon;
  updateGeometry();
  update();
}

QRect RetroButton::plateRect() const { return rect().adjusted(0, 0, -shadowOffset, -shadowOffset); }

int RetroButton::symbolRoom() const {
  if (!symbol) return 0;
  return text().isEmpty() ? symbolSize : symbolSize + symbolGap;
}

QSize RetroButton::sizeAround(double textWidth, double textHeight) const {
  const double height = std::max(textHeight, symbol ? double{symbolSize} : 0.0);
  return {roundedUp(textWidth) + symbolRoom() + 2 * sidePadding + shadowOffset,
          roundedUp(height) + 2 * edgePadding + shadowOffset};
}

int RetroButton::heightForWidth(int width) const {
  const int room = width - sizeAround(0, 0).width();
  return sizeAround(room, measured().heightIn(room)).height();
}

QSize RetroButton::sizeHint() const {
  const int width = sizeAround(measured().unbrokenWidth(), 0).width();
  return {width, heightForWidth(width)};
}

QSize RetroButton::minimumSizeHint() const {
  return {sizeAround(measured().widestPart(), 0).width(), sizeHint().height()};
}

QColor RetroButton::currentFill() const {
  if (!isEnabled()) return mixed(fill, AppTheme::background(), 0.6);
  return underMouse() ? mixed(fill, AppTheme::borderColor(), 0.12) : fill;
}

void RetroButton::paintLabel(QPainter& painter, const QRectF& area) const {
  const QColor white = Qt::white;
  const WrappedText label(text(), Lettering(font()), area.width() - symbolRoom(), Qt::AlignCenter);
  const double left = area.left() + (area.width() - symbolRoom() - label.size().width()) / 2;
  if (symbol) paintIcon(painter, *symbol, QRectF(left, area.top(), symbolSize, area.height()), white);
  label.paint(painter, QRectF(left + symbolRoom(), area.top(), label.size().width(), area.height()), white);
}

void RetroButton::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  QRectF plate = plateRect();
  if (isDown()) {
    plate.translate(shadowOffset, shadowOffset);
  } else {
    paintHardShadow(painter, plate, {Qt::black, shadowOpacity, shadowOffset});
  }
  const QColor line = isEnabled() ? AppTheme::borderColor() : AppTheme::secondaryText();
  fillSharp(painter, plate, currentFill());
  paintOutline(painter, plate, outlineWidth, line);
  if (hasFocus()) {
    const QRectF frame = insideOutline(painter, plate, outlineWidth);
    paintOutline(painter, frame, focusWidth + 1, AppTheme::borderColor());
    paintOutline(painter, frame, focusWidth, Qt::white);
  }
  paintLabel(painter, plate.adjusted(sidePadding, edgePadding, -sidePadding, -edgePadding));
}

}  // namespace vantorel
