#include "Typography.h"

#include <QStringList>

namespace vantorel {

namespace {

QFont fontOf(const QString& family, int points, QFont::Weight weight) {
  QFont font;
  font.setFamilies({family, chineseFamily, QStringLiteral("Noto Color Emoji")});
  font.setPixelSize(points);
  font.setWeight(weight);
  font.setHintingPreference(QFont::PreferNoHinting);  // every letter in its own shape at every scale
  font.setStyleStrategy(QFont::NoSubpixelAntialias);
  return font;
}

}  // namespace

QFont monospaced(int points, QFont::Weight weight) {
  return fontOf(QStringLiteral("DejaVu Sans Mono"), points, weight);
}

QFont systemFont(int points, QFont::Weight weight) {
  return fontOf(QStringLiteral("DejaVu Sans"), points, weight);
}

QFont asDrawn(QFont font) {
  if (font.weight() > QFont::Bold) font.setWeight(QFont::Bold);
  return font;
}

}  // namespace vantorel
