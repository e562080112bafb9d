#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace vantorel {

/// What a window does when watched values have changed.
///
/// A reaction does not run at the assignment but when the action around it is done (`settle`), and only if
/// the value then differs from that at its beginning (`begin`); reactions that change further values are
/// followed by theirs.
class Reactions {
 public:
  /// `reaction` is called with the new value when an action has changed what `read` gives.
  template <class Value>
  void onChange(std::function<Value()> read, std::function<void(const Value&)> reaction) {
    Value initial = read();
    watches.push_back([read = std::move(read), reaction = std::move(reaction),
                       last = std::move(initial)](bool reacts) mutable {
      Value now = read();
      if (now == last) return false;
      last = now;
      if (reacts) reaction(now);
      return true;
    });
  }

  /// An action begins: what others have changed before is not its doing.
  void begin() {
    for (const auto& watch : watches) watch(false);
  }

  /// Runs the reactions to everything that has changed since the action began.
  void settle() {
    bool changed = true;
    while (changed) {
      changed = false;
      for (const auto& watch : watches) changed = watch(true) || changed;
    }
  }

 private:
  std::vector<std::function<bool(bool reacts)>> watches;
};

}  // namespace vantorel
