#include "CardFrame.h"

#include <QPainter>

#include "AccessibleRole.h"
#include "HardShadow.h"
#include "PixelGrid.h"

namespace vantorel {

CardStyle retroCard(const QColor& shadowColor) {
  CardStyle style;
  style.shadowColor = shadowColor;
  return style;
}

CardFrame::CardFrame(const CardStyle& style, QWidget* parent)
    : QWidget(parent), look(style), content(new QVBoxLayout(this)) {
  const int farMargin = look.padding + look.shadowOffset;
  content->setContentsMargins(look.padding, look.padding, farMargin, farMargin);
  presentAs(this, QAccessible::Grouping);
}

QRect CardFrame::cardRect() const { return rect().adjusted(0, 0, -look.shadowOffset, -look.shadowOffset); }

void CardFrame::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QRectF card = cardRect();
  paintHardShadow(painter, card, {look.shadowColor, look.shadowOpacity, look.shadowOffset});
  fillSharp(painter, card, look.fill);
  paintOutline(painter, card, look.outlineWidth, AppTheme::borderColor());
}

}  // namespace vantorel
