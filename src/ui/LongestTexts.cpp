#include "LongestTexts.h"

namespace vantorel {

namespace {

constexpr char16_t firstWideCharacter = 0x2E80;  // of the Chinese blocks

int columnsOf(const QString& text) {
  int columns = 0;
  for (const QChar character : text) columns += character.unicode() >= firstWideCharacter ? 2 : 1;
  return columns;
}

}  // namespace

QStringList longestOf(const QStringList& texts) {
  QStringList longest;
  int most = 0;
  for (const QString& text : texts) {
    const int columns = columnsOf(text);
    if (columns < most) continue;
    if (columns > most) longest.clear();
    most = columns;
    longest += text;
  }
  return longest;
}

}  // namespace vantorel
