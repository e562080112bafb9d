#include "Typography.h"

#include <QStringList>
#include <utility>

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

/// The first of them that is installed draws the Chinese; it is clear in small sizes, also in bold.
QStringList withChineseAndEmoji(QStringList families) {
  return std::move(families) << QStringLiteral("WenQuanYi Micro Hei") << QStringLiteral("Noto Sans CJK SC")
                             << QStringLiteral("DejaVu Sans") << QStringLiteral("Noto Color Emoji");
}

}  // namespace

QFont monospaced(int points, QFont::Weight weight) {
  static const QStringList families =
      withChineseAndEmoji({QStringLiteral("DejaVu Sans Mono"), QStringLiteral("Noto Sans Mono"),
                           QStringLiteral("Liberation Mono")});
  return fontOf(families, QFont::Monospace, points, weight);
}

QFont systemFont(int points, QFont::Weight weight) {
  static const QStringList families = withChineseAndEmoji(
      {QStringLiteral("DejaVu Sans"), QStringLiteral("Noto Sans"), QStringLiteral("Liberation Sans")});
  return fontOf(families, QFont::SansSerif, points, weight);
}

}  // namespace vantorel
