#include "ColorHex.h"

#include <QChar>
#include <QTextBoundaryFinder>
#include <cstdint>
#include <optional>

namespace vantorel {

namespace {

/// The code point that begins at `position` and the number of its code units.
struct CodePoint {
  char32_t value;
  qsizetype length;
};

CodePoint first(QStringView text) {
  if (text.size() > 1 && text[0].isHighSurrogate() && text[1].isLowSurrogate()) {
    return {QChar::surrogateToUcs4(text[0], text[1]), 2};
  }
  return {text[0].unicode(), 1};
}

CodePoint last(QStringView text) {
  const qsizetype size = text.size();
  if (size > 1 && text[size - 2].isHighSurrogate() && text[size - 1].isLowSurrogate()) {
    return {QChar::surrogateToUcs4(text[size - 2], text[size - 1]), 2};
  }
  return {text[size - 1].unicode(), 1};
}

QStringView trimmed(QStringView text) {
  while (!text.isEmpty() && !QChar::isLetterOrNumber(first(text).value)) text = text.mid(first(text).length);
  while (!text.isEmpty() && !QChar::isLetterOrNumber(last(text).value)) text.chop(last(text).length);
  return text;
}

/// The number of characters as a reader counts them.
int characterCount(QStringView text) {
  QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, text.data(), text.size());
  int count = 0;
  while (characters.toNextBoundary() > 0) ++count;
  return count;
}

std::optional<unsigned> hexDigit(QChar character) {
  const char16_t c = character.unicode();
  if (c >= u'0' && c <= u'9') return c - u'0';
  if (c >= u'a' && c <= u'f') return c - u'a' + 10U;
  if (c >= u'A' && c <= u'F') return c - u'A' + 10U;
  return std::nullopt;
}

/// The number that the digits at the start of `text` write, 0 without any; at most eight are ever asked for.
std::uint64_t leadingHexNumber(QStringView text) {
  std::uint64_t value = 0;
  for (const QChar character : text) {
    const std::optional<unsigned> digit = hexDigit(character);
    if (!digit) break;
    value = value << 4U | *digit;
  }
  return value;
}

int byteOf(std::uint64_t value, unsigned shift) { return static_cast<int>(value >> shift & 0xFFU); }
int doubledNibbleOf(std::uint64_t value, unsigned shift) {
  return static_cast<int>(value >> shift & 0xFU) * 17;
}

}  // namespace

QColor colorFromHex(QStringView hex) {
  const QStringView digits = trimmed(hex);
  const std::uint64_t value = leadingHexNumber(digits);
  switch (characterCount(digits)) {
    case 3:
      return {doubledNibbleOf(value, 8), doubledNibbleOf(value, 4), doubledNibbleOf(value, 0)};
    case 6:
      return {byteOf(value, 16), byteOf(value, 8), byteOf(value, 0)};
    case 8:
      return {byteOf(value, 16), byteOf(value, 8), byteOf(value, 0), byteOf(value, 24)};
    default:
      return {1, 1, 0, 1};
  }
}

}  // namespace vantorel
