#include "AppTheme.h"

#include "ColorHex.h"

namespace vantorel::AppTheme {

const QColor& background() {
  static const QColor color = colorFromHex(u"E0E0E0");
  return color;
}

const QColor& cardBackground() {
  static const QColor color = Qt::white;
  return color;
}

const QColor& accent() {
  static const QColor color = colorFromHex(u"FF004D");
  return color;
}

const QColor& secondaryAccent() {
  static const QColor color = colorFromHex(u"29ADFF");
  return color;
}

const QColor& success() {
  static const QColor color = colorFromHex(u"00E436");
  return color;
}

const QColor& warning() {
  static const QColor color = colorFromHex(u"FF6B9D");
  return color;
}

const QColor& text() {
  static const QColor color = colorFromHex(u"1D1D1D");
  return color;
}

const QColor& secondaryText() {
  static const QColor color = colorFromHex(u"5F574F");
  return color;
}

const QColor& borderColor() {
  static const QColor color = colorFromHex(u"000000");
  return color;
}

QColor faded(const QColor& color, double opacity) {
  QColor result = color;
  result.setAlphaF(static_cast<float>(color.alphaF() * opacity));
  return result;
}

}  // namespace vantorel::AppTheme
