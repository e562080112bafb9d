#pragma once

#include <string>

namespace vantorel {

/// The shortest decimal form of a finite `value` that reads back to the same value: no exponent, and no
/// fraction on whole numbers ("15", "0.15", "100000").
std::string shortestDecimal(float value);
std::string shortestDecimal(double value);

/// The same, with ".0" on whole numbers ("15.0").
std::string shortestDecimalWithFraction(float value);

}  // namespace vantorel
