#include "StatusBadge.h"

#include <QPainter>

#include "AppTheme.h"
#include "PixelGrid.h"
#include "Typography.h"

namespace vantorel {

namespace {

constexpr int textSize = 9;
constexpr int outlineWidth = 2;
constexpr QMargins plateMargins(4, 4, 4, 4);

}  // namespace

StatusBadge::StatusBadge(QWidget* parent)
    : WrappingLabel(monospaced(textSize, QFont::Bold), AppTheme::text(), parent) {
  setContentsMargins(plateMargins);
  setAlignment(Qt::AlignCenter);
}

void StatusBadge::showState(const QString& text, bool isGood) {
  setText(text);
  setColor(isGood ? AppTheme::text() : AppTheme::cardBackground());
  if (isGood == isGoodNews) return;
  isGoodNews = isGood;
  update();
}

void StatusBadge::paintEvent(QPaintEvent* event) {
  {
    QPainter painter(this);
    fillSharp(painter, rect(), isGoodNews ? AppTheme::success() : AppTheme::accent());
    paintOutline(painter, rect(), outlineWidth, AppTheme::borderColor());
  }
  WrappingLabel::paintEvent(event);
}

}  // namespace vantorel
