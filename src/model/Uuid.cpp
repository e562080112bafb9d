#include "Uuid.h"

#include <cstddef>
#include <random>
#include <string_view>

namespace vantorel {

Uuid Uuid::random() {
  thread_local std::random_device source;
  Uuid uuid;
  for (std::size_t index = 0; index < uuid.bytes.size(); index += 4) {
    const std::uint32_t word = source();
    for (std::size_t byte = 0; byte < 4; ++byte) {
      uuid.bytes[index + byte] = static_cast<std::uint8_t>(word >> (8 * byte));
    }
  }
  uuid.bytes[6] = static_cast<std::uint8_t>((uuid.bytes[6] & 0x0FU) | 0x40U);  // version 4
  uuid.bytes[8] = static_cast<std::uint8_t>((uuid.bytes[8] & 0x3FU) | 0x80U);  // the RFC's variant
  return uuid;
}

std::string Uuid::toString() const {
  constexpr std::string_view digits = "0123456789abcdef";
  std::string text;
  for (std::size_t index = 0; index < bytes.size(); ++index) {
    if (index == 4 || index == 6 || index == 8 || index == 10) text += '-';
    text += digits[bytes[index] >> 4U];
    text += digits[bytes[index] & 0x0FU];
  }
  return text;
}

}  // namespace vantorel
