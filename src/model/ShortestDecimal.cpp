#include "ShortestDecimal.h"

#include <array>
#include <charconv>
#include <limits>

namespace vantorel {
namespace {

template <class Number>
std::string shortest(Number value) {
  // A sign, all digits before the point, the point, and all places down to the smallest value.
  constexpr int longest = 3 + std::numeric_limits<Number>::max_exponent10 -
                          std::numeric_limits<Number>::min_exponent10 +
                          2 * std::numeric_limits<Number>::max_digits10;
  std::array<char, longest> buffer{};
  if (value == 0) value = 0;  // no sign on zero
  const auto result =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed);
  return {buffer.data(), result.ptr};
}

}  // namespace

std::string shortestDecimal(float value) { return shortest(value); }

std::string shortestDecimal(double value) { return shortest(value); }

std::string shortestDecimalWithFraction(float value) {
  std::string text = shortest(value);
  if (text.find('.') == std::string::npos) text += ".0";
  return text;
}

}  // namespace vantorel
