#include "Utf8.h"

#include <cstddef>

namespace vantorel {
namespace {

bool isBetween(char byte, unsigned lowest, unsigned highest) {
  const unsigned value = static_cast<unsigned char>(byte);
  return value >= lowest && value <= highest;
}

/// The number of bytes of the character at the front of `text`, or 0 if it is not well-formed.
std::size_t characterLength(std::string_view text) {
  const unsigned lead = static_cast<unsigned char>(text.front());
  if (lead < 0x80) return 1;
  if (lead < 0xC2 || lead > 0xF4) return 0;
  const std::size_t length = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
  if (text.size() < length) return 0;
  // The second byte's range keeps out overlong forms, surrogates and what lies beyond the last character.
  const unsigned lowest = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
  const unsigned highest = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
  if (!isBetween(text[1], lowest, highest)) return 0;
  for (std::size_t index = 2; index < length; ++index) {
    if (!isBetween(text[index], 0x80, 0xBF)) return 0;
  }
  return length;
}

}  // namespace

bool isUtf8(std::string_view text) {
  while (!text.empty()) {
    const std::size_t length = characterLength(text);
    if (length == 0) return false;
    text.remove_prefix(length);
  }
  return true;
}

}  // namespace vantorel
