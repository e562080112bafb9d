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

/// Whether every dot falls on the pixels in the same way, so that one drawn square can be repeated.
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

/// A few squares of the grid with their dots: the fewer of them cover a window, the sooner it is drawn.
QPixmap tile(double scale, const QColor& ground) {
  constexpr int squares = 8;
  const int pixels = qRound(spacing * scale);
  QPixmap row(squares * pixels, pixels);
  row.setDevicePixelRatio(scale);
  row.fill(ground);
  QPainter painter(&row);
  paintDots(painter, QSizeF(squares * spacing, dotSize));
  return row;
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
  const QTransform toDevice = painter.deviceTransform();
  painter.save();
  painter.setClipRect(layer, Qt::IntersectClip);
  if (repeats(toDevice)) {
    painter.drawTiledPixmap(layer, tile(toDevice.m11(), ground));
  } else {
    painter.fillRect(layer, ground);
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
