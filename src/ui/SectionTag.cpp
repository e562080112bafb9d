#include "SectionTag.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "AppTheme.h"
#include "PixelGrid.h"
#include "Typography.h"
#include "WrappedText.h"

namespace vantorel {

namespace {

constexpr int tagSize = 9;
constexpr QMargins plateMargins(4, 2, 4, 2);

}  // namespace

SectionTag::SectionTag(const QString& text, QWidget* parent)
    : WrappingLabel(monospaced(tagSize, QFont::Bold), AppTheme::cardBackground(), parent) {
  setContentsMargins(plateMargins);
  setAlignment(Qt::AlignLeft | Qt::AlignTop);
  setText(text);
}

void SectionTag::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QRectF area = contentsRect();
  const WrappedText lines(text(), Lettering(font()), area.width(), alignment());
  QRectF plate = rect();
  const double textWidth = std::ceil(lines.size().width());
  const double textHeight = std::ceil(lines.size().height());
  plate.setWidth(std::min(plate.width(), textWidth + plateMargins.left() + plateMargins.right()));
  plate.setHeight(std::min(plate.height(), textHeight + plateMargins.top() + plateMargins.bottom()));
  fillSharp(painter, plate, AppTheme::borderColor());
  lines.paint(painter, area, color());
}

}  // namespace vantorel
