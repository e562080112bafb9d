#include "RetroMenu.h"

#include <QAction>
#include <QStyleOptionMenuItem>

#include "AppTheme.h"
#include "Icons.h"
#include "PixelGrid.h"
#include "Typography.h"

namespace vantorel {

namespace {

constexpr int outlineWidth = 2;
constexpr int symbolLeft = 8;
constexpr int symbolSize = 12;
constexpr int textLeft = 26;
constexpr int textRight = 10;

}  // namespace

RetroMenu::RetroMenu(QWidget* parent) : QMenu(parent) {
  setFont(monospaced(12));
  setContentsMargins(outlineWidth, outlineWidth, outlineWidth, outlineWidth);
}

void RetroMenu::paintEntry(QPainter& painter, QAction* entry) const {
  const QRectF area = actionGeometry(entry);
  if (entry->isSeparator()) {
    fillSharp(painter, QRectF(area.left(), area.center().y(), area.width(), 1), AppTheme::borderColor());
    return;
  }
  const bool current = entry == activeAction() && entry->isEnabled();
  if (current) fillSharp(painter, area, AppTheme::secondaryAccent());
  const QColor color = current              ? QColor(Qt::white)
                       : entry->isEnabled() ? AppTheme::text()
                                            : AppTheme::faded(AppTheme::secondaryText(), 0.5);
  const QRectF symbol(area.left() + symbolLeft, area.top(), symbolSize, area.height());
  if (entry->isChecked()) {
    paintIcon(painter, Icon::checkMark, symbol, color);
  } else if (!entry->icon().isNull()) {
    QRect square(0, 0, symbolSize, symbolSize);
    square.moveCenter(symbol.center().toPoint());
    entry->icon().paint(&painter, square);
  }
  if (entry->menu() != nullptr) {
    paintIcon(
        painter, Icon::chevron,
        QRectF(area.right() - textRight - symbolSize / 2.0, area.top(), symbolSize / 2.0, area.height()),
        color);
  }
  const QRectF label = area.adjusted(textLeft, 0, -textRight, 0);
  painter.setPen(color);
  painter.drawText(label, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextShowMnemonic,
                   entry->text());
  painter.drawText(label, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine,
                   entry->shortcut().toString(QKeySequence::NativeText));
}

void RetroMenu::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setFont(font());
  fillSharp(painter, rect(), AppTheme::cardBackground());
  for (QAction* entry : actions()) {
    if (entry->isVisible()) paintEntry(painter, entry);
  }
  paintOutline(painter, rect(), outlineWidth, AppTheme::borderColor());
}

}  // namespace vantorel
