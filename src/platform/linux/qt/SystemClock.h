#pragma once

#include "Clock.h"

namespace vantorel {

/// The clock of the machine, in the user's time zone.
class SystemClock final : public Clock {
 public:
  TimePoint now() const override;
  std::string localTime() const override;
  void sleep(std::chrono::microseconds duration) override;
};

}  // namespace vantorel
