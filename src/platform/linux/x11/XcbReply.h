#pragma once

#include <cstdlib>
#include <memory>

namespace vantorel {

/// Frees what XCB allocated.
struct XcbFree {
  void operator()(void* memory) const { std::free(memory); }
};

/// A reply, an event or an error of the X server; null stands for none.
template <class T>
using XcbReply = std::unique_ptr<T, XcbFree>;

}  // namespace vantorel
