#include "LongestTexts.h"

namespace vantorel {

namespace {

constexpr char16_t firstWideCharacter = 0x2E80;  // of the Chinese blocks

/// In fifths of the font's size.
int widthOf(const QString& text) {
  int width = 0;
  for (const QChar character : text) width += character.unicode() >= firstWideCharacter ? 5 : 3;
  return width;
}

}  // namespace

QStringList longestOf(const QStringList& texts) {
  QStringList longest;
  int most = 0;
  for (const QString& text : texts) {
    const int width = widthOf(text);
    if (width < most) continue;
    if (width > most) longest.clear();
    most = width;
    longest += text;
  }
  return longest;
}

QStringList longestInEach(const std::function<QStringList(AppLanguage language)>& textsIn) {
  QStringList longest;
  for (const AppLanguage language : allAppLanguages()) longest += longestOf(textsIn(language));
  return longest;
}

}  // namespace vantorel
