#pragma once

#include <QColor>
#include <QIcon>
#include <QPainter>
#include <QRectF>
#include <QWidget>

namespace vantorel {

/// The symbols of the interface, drawn from shapes at any size.
enum class Icon : unsigned char { controller, unpluggedCable, globe, checkMark, chevron };

/// Draws `icon` in the largest square in the middle of `rect`.
void paintIcon(QPainter& painter, Icon icon, const QRectF& rect, const QColor& color);

/// The symbol for menus and buttons, sharp at every scale.
QIcon symbolIcon(Icon icon, const QColor& color);

/// A symbol of a fixed size in points. Without an accessible name it is decoration.
class IconView : public QWidget {
 public:
  IconView(Icon icon, int size, const QColor& color, QWidget* parent = nullptr);

  void setIcon(Icon icon);
  void setColor(const QColor& color);
  Icon icon() const { return shown; }
  QColor color() const { return fill; }

  QSize sizeHint() const override { return {edge, edge}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Icon shown;
  int edge;
  QColor fill;
};

}  // namespace vantorel
