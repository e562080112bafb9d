#pragma once

#include <chrono>

#include "Descriptor.h"

namespace vantorel {

/// A repeating timer that the kernel keeps, without leeway, on the grid of its start.
class KernelTimer {
 public:
  /// The grid begins `first` from now, with a point every `interval`; both are at least a nanosecond.
  KernelTimer(std::chrono::nanoseconds first, std::chrono::nanoseconds interval);

  /// Readable while a grid point has passed that was not taken yet.
  int number() const { return timer.number(); }

  /// Takes all grid points that have passed as one firing; false if there is none.
  bool take();

 private:
  Descriptor timer;
};

}  // namespace vantorel
