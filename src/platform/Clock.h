#pragma once

#include <chrono>
#include <string>

namespace vantorel {

/// The time of day, and pauses.
class Clock {
 public:
  using TimePoint = std::chrono::system_clock::time_point;

  virtual ~Clock() = default;

  /// Any thread.
  virtual TimePoint now() const = 0;

  /// The local time as HH:MM:SS. Any thread.
  virtual std::string localTime() const = 0;

  /// Blocks the calling thread.
  virtual void sleep(std::chrono::microseconds duration) = 0;
};

}  // namespace vantorel
