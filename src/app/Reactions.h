#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace vantorel {

/// What a window does when watched values have changed.
///
/// A reaction does not run at the assignment but when the action around it is done (`settle`), and only if
/// the value then differs from the one it saw last; reactions that change further values are followed by
/// theirs.
class Reactions {
 public:
  /// `reaction` is called with the new value whenever `read` gives another one than before.
  template <class Value>
  void onChange(std::function<Value()> read, std::function<void(const Value&)> reaction) {
    Value initial = read();
    watches.push_back(
        [read = std::move(read), reaction = std::move(reaction), last = std::move(initial)]() mutable {
          Value now = read();
          if (now == last) return false;
          last = now;
          reaction(now);
          return true;
        });
  }

  /// Runs the reactions to everything that has changed since the last time.
  void settle() {
    bool changed = true;
    while (changed) {
      changed = false;
      for (const auto& watch : watches) changed = watch() || changed;
    }
  }

 private:
  std::vector<std::function<bool()>> watches;
};

}  // namespace vantorel
