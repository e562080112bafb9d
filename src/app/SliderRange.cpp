#include "SliderRange.h"

#include <algorithm>
#include <cmath>

namespace vantorel {

float SliderRange::valueAt(int step) const {
  return static_cast<float>((lowerHundredths + step * stepHundredths) / 100.0);
}

int SliderRange::nearestStep(double value) const {
  // In trillionths, so that a decimal that lies half-way is not moved off by its binary form.
  const double hundredths = std::round(std::clamp(value, -1e3, 1e3) * 1e12) / 1e10;
  const double steps = std::floor((hundredths - lowerHundredths) / stepHundredths + 0.5);
  return static_cast<int>(std::clamp(steps, 0.0, static_cast<double>(stepCount())));
}

}  // namespace vantorel
