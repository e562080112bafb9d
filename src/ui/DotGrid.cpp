#include "DotGrid.h"

#include <QPaintEvent>
#include <QPixmap>
#include <cmath>

#include "AppTheme.h"

namespace vantorel {

namespace {

constexpr int spacing = 20;
constexpr double dotSize = 2;
constexpr double dotOpacity = 0.05;

bool isWhole(double number) { return number == std::floor(number); }

/// Whether every dot falls on the pixels in the same way, so that what is drawn once can be repeated.
bool repeats(const QTransform& toDevice) {
  return toDevice.type() <= QTransform::TxScale && toDevice.m11() == toDevice.m22() &&
         isWhole(toDevice.m11() * spacing) && isWhole(toDevice.dx()) && isWhole(toDevice.dy());
}

void paintDots(QPainter& painter, QSizeF size) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(AppTheme::faded(Qt::black, dotOpacity));
  for (const QPointF& corner : dotGridPoints(size))
    painter.drawEllipse(QRectF(corner, QSizeF(dotSize, dotSize)));
}

/// The dots of a few squares, side by side: the fewer of these cover a row, the sooner it is drawn.
QPixmap rowOfDots(double scale, const QColor& ground) {
  constexpr int squares = 8;
  const int pixels = qRound(spacing * scale);
  QPixmap row(squares * pixels, qRound(std::ceil(dotSize * scale)));
  row.setDevicePixelRatio(scale);
  row.fill(ground);
  QPainter painter(&row);
  paintDots(painter, QSizeF(squares * spacing, dotSize));
  return row;
}

/// Row by row: Qt shares out what is higher among threads, which takes longer than to draw it.
void paintRepeatedDots(QPainter& painter, QSize size, const QColor& ground) {
  const QPixmap dots = rowOfDots(painter.deviceTransform().m11(), ground);
  for (int y = 0; y < size.height(); y += spacing)
    painter.drawTiledPixmap(QRectF(0, y, size.width(), dots.deviceIndependentSize().height()), dots);
}

}  // namespace

std::vector<QPointF> dotGridPoints(QSizeF size) {
  std::vector<QPointF> points;
  if (size.width() <= 0 || size.height() <= 0) return points;
  for (int column = 0; column * spacing < size.width(); ++column) {
    for (int row = 0; row * spacing < size.height(); ++row)
      points.emplace_back(column * spacing, row * spacing);
  }
  return points;
}

void paintDotGrid(QPainter& painter, QSize size, const QColor& ground) {
  if (size.isEmpty()) return;
  const QRect layer({0, 0}, size);
  painter.save();
  painter.setClipRect(layer, Qt::IntersectClip);
  painter.fillRect(layer, ground);
  if (repeats(painter.deviceTransform())) {
    paintRepeatedDots(painter, size, ground);
  } else {
    paintDots(painter, size);
  }
  painter.restore();
}

DotGridBackground::DotGridBackground(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void DotGridBackground::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  paintDotGrid(painter, size(), AppTheme::background());
}

}  // namespace vantorel
