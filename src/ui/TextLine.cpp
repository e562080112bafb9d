#include "TextLine.h"

#include <QFontMetricsF>
#include <cmath>

#include "Typography.h"

namespace vantorel {

QString fromCore(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

void paintTextLine(QPainter& painter, const QRectF& area, const QString& text, const QFont& font,
                   const QColor& color, Qt::Alignment alignment) {
  const QFont drawn = asDrawn(font);
  const QFontMetricsF metrics(drawn);
  double left = area.left();
  if (!(alignment & Qt::AlignLeft)) {
    const double room = area.width() - metrics.horizontalAdvance(text);
    left += alignment & Qt::AlignHCenter ? room / 2 : room;
  }
  painter.setFont(drawn);
  painter.setPen(color);
  painter.drawText(QPointF(left, area.center().y() + metrics.capHeight() / 2), text);
}

TextLine::TextLine(int lineHeight, const QFont& font, const QColor& color, QWidget* parent)
    : QLabel(parent), textColor(color) {
  setFont(font);
  setFixedHeight(lineHeight);
  setTextFormat(Qt::PlainText);
}

QSize TextLine::sizeHint() const {
  return {static_cast<int>(std::ceil(QFontMetricsF(asDrawn(font())).horizontalAdvance(text()))),
          minimumHeight()};
}

void TextLine::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  paintTextLine(painter, rect(), text(), font(), textColor);
}

}  // namespace vantorel
