#pragma once

#include <functional>
#include <utility>

namespace vantorel {

/// Something asked for that ends with its holder: the observation of a value, a registration with a service.
class Subscription {
 public:
  Subscription() = default;
  /// `end` runs once, when the subscription is reset or destroyed.
  explicit Subscription(std::function<void()> end) : end_(std::move(end)) {}
  Subscription(Subscription&& other) noexcept : end_(std::exchange(other.end_, nullptr)) {}
  Subscription& operator=(Subscription&& other) noexcept {
    if (this != &other) {
      reset();
      end_ = std::exchange(other.end_, nullptr);
    }
    return *this;
  }
  Subscription(const Subscription&) = delete;
  Subscription& operator=(const Subscription&) = delete;
  ~Subscription() { reset(); }

  /// Ends it now.
  void reset() {
    if (const auto end = std::exchange(end_, nullptr)) end();
  }

 private:
  std::function<void()> end_;
};

}  // namespace vantorel
