#pragma once

#include <cstdint>

namespace vantorel {

/// An axis of SDL's, -32768 to 32767, as a deflection from -1 to 1; both ends are reached exactly.
constexpr float stickDeflection(std::int16_t axis) {
  return axis < 0 ? static_cast<float>(axis) / 32768.0F : static_cast<float>(axis) / 32767.0F;
}

/// A vertical axis of SDL's, which is positive downwards, as a deflection that is positive upwards. A
/// centred stick gives 0, never -0.
constexpr float upwardDeflection(std::int16_t axis) { return 0.0F - stickDeflection(axis); }

}  // namespace vantorel
