#pragma once

#include <optional>
#include <string_view>

#include "VirtualTime.h"

namespace vantorel {

// The numbers of a scenario: an optional minus sign, digits, and perhaps a point and more digits. Each
// function gives none for a text that is no such number or whose value is too large.

std::optional<double> decimalNumber(std::string_view text);

/// The single-precision value nearest to the text.
std::optional<float> singlePrecisionNumber(std::string_view text);

/// A length of time: a decimal number without a sign, with `ms` or `s` behind it, to the nanosecond.
std::optional<VirtualTime::Duration> timeLength(std::string_view text);

}  // namespace vantorel
