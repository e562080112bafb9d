#include "KernelTimer.h"

#include <sys/timerfd.h>

#include <algorithm>
#include <cstdint>

namespace vantorel {
namespace {

timespec toTimespec(std::chrono::nanoseconds duration) {
  // All zeros would disarm the timer.
  const auto positive = std::max(duration, std::chrono::nanoseconds(1));
  const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(positive);
  return {.tv_sec = seconds.count(), .tv_nsec = (positive - seconds).count()};
}

}  // namespace

KernelTimer::KernelTimer(std::chrono::nanoseconds first, std::chrono::nanoseconds interval)
    : timer(timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC), "timerfd_create") {
  const itimerspec grid{.it_interval = toTimespec(interval), .it_value = toTimespec(first)};
  timerfd_settime(timer.number(), 0, &grid, nullptr);
}

bool KernelTimer::take() {
  std::uint64_t passed = 0;
  return read(timer.number(), &passed, sizeof passed) == sizeof passed;
}

}  // namespace vantorel
