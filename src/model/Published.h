#pragma once

#include <atomic>
#include <type_traits>
#include <utility>

#include "Observers.h"

namespace vantorel {

/// A value that tells its observers of every assignment, also of one that changes nothing.
///
/// It is assigned and observed on the main thread; observers are told after the assignment. A small plain
/// value (a number, a Boolean, an enumeration) may be read on any thread, everything else on the main
/// thread only.
template <class T>
class Published {
  static constexpr bool isAtomic = std::is_trivially_copyable_v<T> && sizeof(T) <= sizeof(void*);

 public:
  using Reading = std::conditional_t<isAtomic, T, const T&>;

  explicit Published(T value) : value_(std::move(value)) {}
  Published(const Published&) = delete;
  Published& operator=(const Published&) = delete;
  ~Published() = default;

  Published& operator=(T value) {
    if constexpr (isAtomic) {
      value_.store(value);
    } else {
      value_ = std::move(value);
    }
    observers_.tell();
    return *this;
  }

  Reading get() const {
    if constexpr (isAtomic) {
      return value_.load();
    } else {
      return value_;
    }
  }
  operator Reading() const { return get(); }  // NOLINT(google-explicit-constructor): reads like the value
  Reading operator*() const { return get(); }

  /// `callback` is called after every assignment until the subscription ends.
  [[nodiscard]] Subscription observe(std::function<void()> callback) const {
    return observers_.add(std::move(callback));
  }

 private:
  std::conditional_t<isAtomic, std::atomic<T>, T> value_;
  mutable Observers<> observers_;
};

}  // namespace vantorel
