#include "Typography.h"

#include <QStringList>

namespace vantorel {

namespace {

QFont fontOf(const QStringList& families, QFont::StyleHint hint, int points, QFont::Weight weight) {
  QFont font;
  font.setFamilies(families);
  font.setStyleHint(hint);
  font.setPixelSize(points);
  font.setWeight(weight);
  return font;
}

}  // namespace

QFont monospaced(int points, QFont::Weight weight) {
  static const QStringList families = {
      QStringLiteral("DejaVu Sans Mono"), QStringLiteral("Noto Sans Mono"),
      QStringLiteral("Liberation Mono"),  QStringLiteral("Noto Sans CJK SC"),
      QStringLiteral("DejaVu Sans"),      QStringLiteral("Noto Color Emoji"),
  };
  return fontOf(families, QFont::Monospace, points, weight);
}

QFont systemFont(int points, QFont::Weight weight) {
  static const QStringList families = {
      QStringLiteral("DejaVu Sans"),      QStringLiteral("Noto Sans"),
      QStringLiteral("Liberation Sans"),  QStringLiteral("Noto Sans CJK SC"),
      QStringLiteral("Noto Color Emoji"),
  };
  return fontOf(families, QFont::SansSerif, points, weight);
}

}  // namespace vantorel
