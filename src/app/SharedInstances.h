#pragma once

#include "Platform.h"

namespace vantorel {

/// The shared managers of one running program: each is made on first use, and all end with this object.
/// One at a time.
class SharedInstances {
 public:
  /// `platform` outlives this object.
  explicit SharedInstances(Platform& platform);
  SharedInstances(const SharedInstances&) = delete;
  SharedInstances& operator=(const SharedInstances&) = delete;
  /// Ends them without a word: the hot key and the status item go with the program.
  ~SharedInstances();
};

}  // namespace vantorel
