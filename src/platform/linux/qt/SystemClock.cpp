#include "SystemClock.h"

#include <array>
#include <ctime>
#include <thread>

namespace vantorel {

Clock::TimePoint SystemClock::now() const { return std::chrono::system_clock::now(); }

std::string SystemClock::localTime() const {
  const std::time_t seconds = std::chrono::system_clock::to_time_t(now());
  std::tm local{};
  localtime_r(&seconds, &local);
  std::array<char, sizeof "HH:MM:SS"> text{};
  return {text.data(), std::strftime(text.data(), text.size(), "%H:%M:%S", &local)};
}

void SystemClock::sleep(std::chrono::microseconds duration) { std::this_thread::sleep_for(duration); }

}  // namespace vantorel
