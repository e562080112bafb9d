#pragma once

namespace vantorel {

/// The values that a slider can take: a grid of steps from a lower to an upper end, in hundredths so that
/// its points are exact decimals.
struct SliderRange {
  int lowerHundredths;
  int upperHundredths;
  int stepHundredths;

  /// The number of steps from the lower to the upper end.
  constexpr int stepCount() const { return (upperHundredths - lowerHundredths) / stepHundredths; }

  /// The point `step` steps above the lower end: the single-precision value nearest to its decimal.
  float valueAt(int step) const;

  /// The step of the point nearest to `value`, half-way upwards; a value outside the range gives the
  /// nearer end.
  int nearestStep(double value) const;

  /// The point nearest to `value`.
  float snapped(double value) const { return valueAt(nearestStep(value)); }
};

/// The settings of the thumbstick mouse.
inline constexpr SliderRange mouseSensitivityRange{500, 3000, 100};
inline constexpr SliderRange scrollSensitivityRange{100, 1000, 50};
inline constexpr SliderRange deadzoneRange{5, 50, 5};

}  // namespace vantorel
