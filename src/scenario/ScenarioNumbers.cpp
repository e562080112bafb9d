#include "ScenarioNumbers.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string>
#include <system_error>

namespace vantorel {
namespace {

bool isDigits(std::string_view text) {
  return !text.empty() &&
         std::all_of(text.begin(), text.end(), [](char digit) { return digit >= '0' && digit <= '9'; });
}

/// The two sides of the point of a number without a sign.
struct Digits {
  std::string_view whole;
  std::string_view fraction;
};

std::optional<Digits> digits(std::string_view text) {
  const std::size_t point = text.find('.');
  if (point == std::string_view::npos) return isDigits(text) ? std::optional(Digits{text, {}}) : std::nullopt;
  const Digits sides{text.substr(0, point), text.substr(point + 1)};
  return isDigits(sides.whole) && isDigits(sides.fraction) ? std::optional(sides) : std::nullopt;
}

template <class Number>
std::optional<Number> number(std::string_view text) {
  const auto sides = digits(text.substr(text.starts_with('-') ? 1 : 0));
  if (!sides) return std::nullopt;
  Number value = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
  if (result.ec == std::errc{}) return value;
  // Out of range: either too large, or so small that the nearest value is zero.
  const bool isSmall = sides->whole.find_first_not_of('0') == std::string_view::npos;
  return isSmall ? std::optional(Number{0}) : std::nullopt;
}

/// The value of `number` times ten to the power of `places`, to the nearest whole.
std::optional<std::int64_t> scaled(const Digits& number, std::size_t places) {
  std::string all(number.whole);
  all.append(number.fraction.substr(0, places));
  if (number.fraction.size() < places) all.append(places - number.fraction.size(), '0');
  std::int64_t value = 0;
  const auto result = std::from_chars(all.data(), all.data() + all.size(), value);
  if (result.ec != std::errc{}) return std::nullopt;
  const bool roundsUp = number.fraction.size() > places && number.fraction[places] >= '5';
  return roundsUp ? value + 1 : value;
}

}  // namespace

std::optional<double> decimalNumber(std::string_view text) { return number<double>(text); }

std::optional<float> singlePrecisionNumber(std::string_view text) { return number<float>(text); }

std::optional<VirtualTime::Duration> timeLength(std::string_view text) {
  // A century is more than enough for a play, and no sum of few of them overflows.
  constexpr VirtualTime::Duration longest = std::chrono::years(100);
  const bool isMilliseconds = text.ends_with("ms");
  if (!text.ends_with('s')) return std::nullopt;
  text.remove_suffix(isMilliseconds ? 2 : 1);
  const auto sides = digits(text);
  if (!sides) return std::nullopt;
  const auto nanoseconds = scaled(*sides, isMilliseconds ? 6 : 9);
  if (!nanoseconds || *nanoseconds > longest.count()) return std::nullopt;
  return VirtualTime::Duration(*nanoseconds);
}

}  // namespace vantorel
