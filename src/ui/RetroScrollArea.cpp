#include "RetroScrollArea.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionSlider>

#include "AccessibleRole.h"
#include "AppTheme.h"
#include "Icons.h"
#include "PixelGrid.h"

namespace vantorel {

namespace {

constexpr int barWidth = 14;
constexpr int outlineWidth = 2;
constexpr int arrowSize = 8;

void paintArrow(QPainter& painter, const QRectF& button, double degrees) {
  if (button.isEmpty()) return;
  fillSharp(painter, button, AppTheme::cardBackground());
  paintOutline(painter, button, outlineWidth, AppTheme::borderColor());
  QPixmap arrow = symbolIcon(Icon::chevron, AppTheme::borderColor())
                      .pixmap(QSize(arrowSize, arrowSize), painter.device()->devicePixelRatioF());
  painter.save();
  painter.translate(button.center());
  painter.rotate(degrees);
  painter.drawPixmap(QPointF(-arrowSize / 2.0, -arrowSize / 2.0), arrow);
  painter.restore();
}

}  // namespace

RetroScrollBar::RetroScrollBar(Qt::Orientation orientation, QWidget* parent)
    : QScrollBar(orientation, parent) {}

QSize RetroScrollBar::sizeHint() const {
  const QSize usual = QScrollBar::sizeHint();
  return orientation() == Qt::Vertical ? QSize(barWidth, usual.height()) : QSize(usual.width(), barWidth);
}

void RetroScrollBar::paintEvent(QPaintEvent* /*event*/) {
  QStyleOptionSlider option;
  initStyleOption(&option);
  const auto part = [&](QStyle::SubControl control) {
    return QRectF(style()->subControlRect(QStyle::CC_ScrollBar, &option, control, this));
  };
  const bool vertical = orientation() == Qt::Vertical;
  QPainter painter(this);
  fillSharp(painter, rect(), AppTheme::background());
  paintOutline(painter, rect(), outlineWidth, AppTheme::borderColor());
  paintArrow(painter, part(QStyle::SC_ScrollBarSubLine), vertical ? -90 : 180);
  paintArrow(painter, part(QStyle::SC_ScrollBarAddLine), vertical ? 90 : 0);
  const QRectF handle = part(QStyle::SC_ScrollBarSlider);
  fillSharp(painter, handle, isSliderDown() ? AppTheme::secondaryAccent() : AppTheme::cardBackground());
  paintOutline(painter, handle, outlineWidth, AppTheme::borderColor());
}

RetroScrollArea::RetroScrollArea(QWidget* parent) : QScrollArea(parent) {
  setFrameShape(QFrame::NoFrame);
  setWidgetResizable(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBar(new RetroScrollBar(Qt::Vertical, this));
  viewport()->setAutoFillBackground(false);
  // Qt's own accessible scroll area crashes when it is asked for the scroll bar that has just been hidden.
  presentAs(this, QAccessible::Client);
}

void RetroScrollArea::setContent(QWidget* content) {
  viewport()->resize(size() - QSize(barWidth, 0));  // so that the content is laid out at no other width first
  setWidget(content);
  content->setAutoFillBackground(false);  // it is turned on above
}

}  // namespace vantorel
