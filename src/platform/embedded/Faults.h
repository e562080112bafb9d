#pragma once

#include <cstdint>
#include <set>

namespace vantorel {

/// What the embedded platform can be told to fail to make.
enum class Fault : std::uint8_t {
  keyDown,
  keyUp,
  cursor,  ///< the cursor cannot be found
  mouseMove,
  mouseDown,
  mouseUp,
  scroll,
  statusItem,
};

/// The faults that the embedded platform has at present; none at first.
class Faults {
 public:
  void set(Fault fault, bool isOn) {
    if (isOn) {
      present.insert(fault);
    } else {
      present.erase(fault);
    }
  }

  bool contains(Fault fault) const { return present.contains(fault); }

 private:
  std::set<Fault> present;
};

}  // namespace vantorel
