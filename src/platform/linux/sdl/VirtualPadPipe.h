#pragma once

#include <string>
#include <vector>

#include "PolledFile.h"

namespace vantorel {

/// The lines for the virtual pads, from the named pipe (or the file, read once) whose name the environment
/// variable VANTOREL_VIRTUAL_PADS holds when this object is made; without the variable there are none. What
/// waits there at the start is carried out before the first look for controllers, so that pads can be there
/// from the beginning. Lines end with a newline; see VirtualPads for what they say. SDL's thread.
class VirtualPadPipe {
 public:
  /// A name that cannot be opened is reported on standard error.
  VirtualPadPipe();

  /// Readable when lines wait; negative without a pipe.
  int descriptor() const { return pipe_.descriptor(); }

  /// The lines that have arrived in full since the last call.
  std::vector<std::string> takeLines();

 private:
  PolledFile pipe_;
  std::string rest_;
};

}  // namespace vantorel
