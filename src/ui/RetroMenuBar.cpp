#include "RetroMenuBar.h"

#include <QPainter>

#include "AppTheme.h"
#include "PixelGrid.h"
#include "Typography.h"

namespace vantorel {

namespace {

constexpr int textSize = 12;
constexpr int lineWidth = 2;
constexpr int barHeight = 26;

}  // namespace

RetroMenuBar::RetroMenuBar(QWidget* parent) : QMenuBar(parent) {
  setFont(monospaced(textSize, QFont::Bold));
  setFixedHeight(barHeight);  // in every language
}

void RetroMenuBar::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  fillSharp(painter, rect(), AppTheme::cardBackground());
  fillSharp(painter, QRectF(0, height() - lineWidth, width(), lineWidth), AppTheme::borderColor());
  for (QAction* const entry : actions()) {
    const QRect area = actionGeometry(entry);  // what is drawn anew when it opens and closes
    const bool isOpen = entry == activeAction();
    if (isOpen) fillSharp(painter, area, AppTheme::secondaryAccent());
    painter.setPen(isOpen ? AppTheme::cardBackground() : AppTheme::text());
    painter.drawText(area, Qt::AlignCenter | Qt::TextSingleLine | Qt::TextShowMnemonic, entry->text());
  }
}

}  // namespace vantorel
