#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace vantorel {

/// One coordinate of a cursor that moves in fractions on a server that knows only whole pixels.
class PixelAxis {
 public:
  /// Remembers the exact `position` and returns the pixel to send for it.
  std::int16_t pixelFor(double position) {
    using Limits = std::numeric_limits<std::int16_t>;
    requested = position;
    sent = static_cast<std::int16_t>(std::lround(
        std::clamp(position, static_cast<double>(Limits::min()), static_cast<double>(Limits::max()))));
    return sent;
  }

  /// The exact position while the cursor is where it was sent, otherwise that of `pixel`: somebody else moved
  /// it, or it met the edge of the screen.
  double positionAt(std::int16_t pixel) const { return pixel == sent ? requested : pixel; }

 private:
  double requested = 0;
  std::int16_t sent = 0;
};

}  // namespace vantorel
