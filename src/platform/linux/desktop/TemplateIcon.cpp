#include "TemplateIcon.h"

#include <QPen>
#include <QPixmap>

#include <algorithm>

#include "GamepadSymbol.h"

namespace vantorel {
namespace {

constexpr int usualSizes[] = {16, 22, 24, 32, 48, 64, 128};

}  // namespace

TemplateIcon::TemplateIcon(const std::string& symbolName) : isKnown(symbolName == "gamecontroller.fill") {}

void TemplateIcon::paint(QPainter& painter, const QRectF& bounds, const QColor& background) const {
  if (!isKnown) return;
  const bool onDark = background.lightnessF() < 0.5F;
  const QColor fill(onDark ? Qt::white : Qt::black);
  QColor outline(onDark ? Qt::black : Qt::white);
  outline.setAlphaF(0.8F);

  const qreal margin = std::max<qreal>(1, bounds.width() / 22);
  const QPainterPath path = gamepadPath(bounds.adjusted(margin, margin, -margin, -margin));
  painter.setRenderHint(QPainter::Antialiasing);
  painter.strokePath(path, QPen(outline, 1.6 * margin, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.fillPath(path, fill);
}

QIcon TemplateIcon::icon(const QColor& background) const {
  QIcon icon;
  if (!isKnown) return icon;
  for (const int size : usualSizes) {
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(painter, QRectF(0, 0, size, size), background);
    painter.end();
    icon.addPixmap(pixmap);
  }
  return icon;
}

}  // namespace vantorel
