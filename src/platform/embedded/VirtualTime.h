#pragma once

#include <chrono>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "Clock.h"
#include "MainQueue.h"
#include "Timers.h"

namespace vantorel {

/// A clock that stands still while anything runs and then goes on to whatever is due next: a minute passes
/// as fast as its work is done, and every run is the same.
///
/// It serves the main lane (the main queue and the main timers) and one lane for each queue timer. What
/// runs takes no time, except that the main lane may sleep: until the sleep ends the lane is busy while
/// the other lanes and the outside world go on within it. It starts at 2026-01-01 09:00:00 UTC.
/// One thread.
class VirtualTime : public MainQueue, public Timers, public Clock {
 public:
  /// The time since the start, or a length of time.
  using Duration = std::chrono::nanoseconds;

  VirtualTime() = default;
  VirtualTime(const VirtualTime&) = delete;
  VirtualTime& operator=(const VirtualTime&) = delete;
  ~VirtualTime() override = default;

  /// The time since the start.
  Duration elapsed() const { return now_; }

  /// Lets `event` of the outside world happen at `due`, which is counted from the start; events due at the
  /// same time happen in the order of these calls. An event does not sleep.
  void happenAt(Duration due, std::function<void()> event);

  /// Runs until `end` and all events have passed and the main queue is empty, then all that can run at that
  /// instant. A sleep may carry the clock past `end`. Timers alone do not prolong it.
  void playUntil(Duration end);

  /// Plays for `duration` from now.
  void advance(Duration duration) { playUntil(now_ + duration); }

  /// Runs all that can run at the present instant.
  void settle() { playUntil(now_); }

  void post(std::function<void()> block) override;

  std::unique_ptr<Timer> startQueueTimer(const std::string& label, std::chrono::milliseconds interval,
                                         std::function<void()> handler) override;
  std::unique_ptr<Timer> startMainTimer(std::chrono::milliseconds interval,
                                        std::function<void()> handler) override;

  TimePoint now() const override;
  std::string localTime() const override;
  /// Only the main lane sleeps: a block, a main timer, or a test outside of both.
  void sleep(std::chrono::microseconds duration) override;

 private:
  struct RepeatingTimer {
    Duration due;
    Duration interval;
    std::shared_ptr<const std::function<void()>> handler;  ///< null once the timer has ended
  };
  using TimerList = std::vector<std::shared_ptr<RepeatingTimer>>;
  class RunningTimer;

  struct Event {
    Duration due;
    std::function<void()> action;
  };

  std::unique_ptr<Timer> start(TimerList& list, Duration firstDelay, Duration interval,
                               std::function<void()> handler) const;
  bool runNext();
  bool runBlock();
  bool runMainTimer();
  bool runQueueTimer();
  bool runEvent();
  void fire(const std::shared_ptr<RepeatingTimer>& timer);
  void goOn(Duration limit);

  Duration now_{0};
  bool isSleeping = false;  ///< the main lane is busy
  std::deque<std::function<void()>> mainQueue;
  TimerList mainTimers;
  TimerList queueTimers;     ///< in the order in which their queues were made
  std::deque<Event> events;  ///< in the order in which they happen
};

}  // namespace vantorel
