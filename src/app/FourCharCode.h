#pragma once

#include <cstdint>
#include <string_view>

namespace vantorel {

/// The number behind a four-character code: the first four bytes of `text` in the Mac OS Roman character
/// set, the first one highest. Fewer bytes give a smaller number; 0 when `text` (UTF-8) holds a character
/// that the set lacks.
std::uint32_t fourCharCodeValue(std::string_view text);

}  // namespace vantorel
