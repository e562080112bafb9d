#include "Icons.h"

#include <QIconEngine>
#include <QPainterPath>
#include <QPainterPathStroker>
#include <QPixmap>
#include <algorithm>
#include <vector>

#include "AccessibleRole.h"
#include "PixelGrid.h"

namespace vantorel {

namespace {

/// The drawings fill a square of this many units, origin in the upper left.
constexpr double units = 24;

QPainterPath stroked(const QPainterPath& line, double width) {
  QPainterPathStroker pen;
  pen.setWidth(width);
  pen.setCapStyle(Qt::FlatCap);
  pen.setJoinStyle(Qt::MiterJoin);
  return pen.createStroke(line);
}

QPainterPath straight(QPointF from, QPointF to) {
  QPainterPath line(from);
  line.lineTo(to);
  return line;
}

QPainterPath box(double x, double y, double width, double height) {
  QPainterPath path;
  path.addRect(x, y, width, height);
  return path;
}

/// All of `parts`, filled wherever one of them is.
QPainterPath together(const std::vector<QPainterPath>& parts) {
  QPainterPath whole;
  whole.setFillRule(Qt::WindingFill);
  for (const QPainterPath& part : parts) whole.addPath(part);
  return whole;
}

QPainterPath ellipse(double radiusX, double radiusY) {
  QPainterPath path;
  path.addEllipse(QPointF(units / 2, units / 2), radiusX, radiusY);
  return path;
}

/// A pad with two grips; the cross and two buttons are holes in it, as they lie in it and do not overlap.
QPainterPath controllerPath() {
  QPainterPath pad(QPointF(7, 5.5));
  pad.lineTo(17, 5.5);
  pad.cubicTo(20.6, 5.5, 22, 9, 22.8, 13.6);
  pad.cubicTo(23.6, 18, 22.4, 19.3, 20.9, 19.3);
  pad.cubicTo(19, 19.3, 18, 17.6, 16.8, 15.6);
  pad.lineTo(7.2, 15.6);
  pad.cubicTo(6, 17.6, 5, 19.3, 3.1, 19.3);
  pad.cubicTo(1.6, 19.3, 0.4, 18, 1.2, 13.6);
  pad.cubicTo(2, 9, 3.4, 5.5, 7, 5.5);
  pad.closeSubpath();
  for (const QPainterPath& part : {box(7, 7.8, 1.8, 5.4), box(5.2, 9.6, 1.8, 1.8), box(8.8, 9.6, 1.8, 1.8)})
    pad.addPath(part);
  pad.addEllipse(QPointF(17.6, 8.9), 1.25, 1.25);
  pad.addEllipse(QPointF(15.2, 11.9), 1.25, 1.25);
  return pad;
}

/// A plug with two prongs, pulled out of its socket, which has two holes for them.
QPainterPath unpluggedCablePath() {
  const QPainterPath plug = together({box(0, 10.5, 3, 3), box(3, 5, 5.5, 14)});
  const QPainterPath prongs = together({box(8.5, 7.5, 4, 2.5), box(8.5, 14, 4, 2.5)});
  const QPainterPath socket = together({box(16, 5, 2.5, 2.5), box(16, 10, 2.5, 4), box(16, 16.5, 2.5, 2.5),
                                        box(18.5, 5, 2.5, 14), box(21, 10.5, 3, 3)});
  return together({plug, prongs, socket});
}

QPainterPath globePath() {
  constexpr double line = 1.7;
  std::vector<QPainterPath> lines{stroked(ellipse(10.2, 10.2), line), stroked(ellipse(4.4, 10.2), line)};
  for (const double y : {7.4, 12.0, 16.6}) {
    const double reach = y == 12.0 ? 10.2 : 8.8;
    lines.push_back(stroked(straight({12 - reach, y}, {12 + reach, y}), line));
  }
  return together(lines);
}

QPainterPath checkMarkPath() {
  QPainterPath line(QPointF(2.8, 12.2));
  line.lineTo(9.2, 18.6);
  line.lineTo(21.2, 5.4);
  return stroked(line, 4);
}

QPainterPath chevronPath() {
  QPainterPath line(QPointF(7.5, 3));
  line.lineTo(16.5, 12);
  line.lineTo(7.5, 21);
  return stroked(line, 3.6);
}

const QPainterPath& pathOf(Icon icon) {
  static const QPainterPath controller = controllerPath();
  static const QPainterPath unpluggedCable = unpluggedCablePath();
  static const QPainterPath globe = globePath();
  static const QPainterPath checkMark = checkMarkPath();
  static const QPainterPath chevron = chevronPath();
  switch (icon) {
    case Icon::controller:
      return controller;
    case Icon::unpluggedCable:
      return unpluggedCable;
    case Icon::globe:
      return globe;
    case Icon::checkMark:
      return checkMark;
    case Icon::chevron:
      break;
  }
  return chevron;
}

/// Draws the shapes anew for every size and scale that is asked for.
class ShapeEngine : public QIconEngine {
 public:
  ShapeEngine(Icon icon, const QColor& color) : shape(icon), fill(color) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) override {
    QColor color = fill;
    if (mode == QIcon::Disabled) color.setAlphaF(color.alphaF() / 2);
    paintIcon(*painter, shape, rect, color);
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap result(size);
    result.fill(Qt::transparent);
    QPainter painter(&result);
    paint(&painter, QRect({0, 0}, size), mode, state);
    return result;
  }

  QIconEngine* clone() const override { return new ShapeEngine(*this); }

 private:
  Icon shape;
  QColor fill;
};

}  // namespace

void paintIcon(QPainter& painter, Icon icon, const QRectF& rect, const QColor& color) {
  const double edge = std::min(rect.width(), rect.height());
  QRectF square(0, 0, edge, edge);
  square.moveCenter(rect.center());
  square = PixelGrid(painter).snapped(square);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(square.topLeft());
  painter.scale(square.width() / units, square.height() / units);
  painter.fillPath(pathOf(icon), color);
  painter.restore();
}

QIcon symbolIcon(Icon icon, const QColor& color) { return QIcon(new ShapeEngine(icon, color)); }

IconView::IconView(Icon icon, int size, const QColor& color, QWidget* parent)
    : QWidget(parent), shown(icon), edge(size), fill(color) {
  setFixedSize(size, size);
  presentAs(this, QAccessible::Graphic);
}

void IconView::setIcon(Icon icon) {
  if (icon == shown) return;
  shown = icon;
  update();
}

void IconView::setColor(const QColor& color) {
  if (color == fill) return;
  fill = color;
  update();
}

void IconView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  paintIcon(painter, shown, rect(), fill);
}

}  // namespace vantorel
