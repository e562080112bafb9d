#pragma once

#include <cstdint>

namespace vantorel {

/// Gathers scrolling in pixels into the clicks of a mouse wheel.
class WheelAxis {
 public:
  static constexpr std::int64_t pixelsPerClick = 15;

  /// The whole clicks, with the direction's sign, that `pixels` complete; what is left counts next time.
  std::int64_t clicksAfter(std::int32_t pixels) {
    remainder += pixels;
    const std::int64_t clicks = remainder / pixelsPerClick;
    remainder -= clicks * pixelsPerClick;
    return clicks;
  }

 private:
  std::int64_t remainder = 0;
};

}  // namespace vantorel
