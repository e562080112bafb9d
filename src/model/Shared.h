#pragma once

#include <functional>
#include <memory>
#include <stdexcept>
#include <utility>

namespace vantorel {

/// The one shared instance of `T`, made on first use by the maker that the running program has installed.
/// Main thread.
template <class T>
class Shared {
 public:
  using Maker = std::function<std::unique_ptr<T>()>;

  static void install(Maker maker) { slot().maker = std::move(maker); }

  /// Throws std::logic_error when no program runs.
  static T& instance() {
    Slot& current = slot();
    if (!current.instance) {
      if (!current.maker) throw std::logic_error("a shared instance was asked for before the program began");
      current.instance = current.maker();
    }
    return *current.instance;
  }

  /// Destroys the instance and forgets the maker.
  static void reset() {
    slot().instance.reset();
    slot().maker = nullptr;
  }

 private:
  struct Slot {
    Maker maker;
    std::unique_ptr<T> instance;
  };
  static Slot& slot() {
    static Slot only;
    return only;
  }
};

}  // namespace vantorel
