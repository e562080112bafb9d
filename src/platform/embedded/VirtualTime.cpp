#include "VirtualTime.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <stdexcept>
#include <utility>

namespace vantorel {
namespace {

using std::chrono::system_clock;

constexpr auto startOfTime = std::chrono::sys_days(std::chrono::year(2026) / 1 / 1) + std::chrono::hours(9);

/// The first point after `now` of the grid that `point` lies on.
VirtualTime::Duration firstPointAfter(VirtualTime::Duration now, VirtualTime::Duration point,
                                      VirtualTime::Duration interval) {
  return point + ((now - point) / interval + 1) * interval;
}

}  // namespace

/// Ends its timer when it is destroyed, also from within the timer's own handler.
class VirtualTime::RunningTimer : public Timer {
 public:
  explicit RunningTimer(std::shared_ptr<RepeatingTimer> timer) : running(std::move(timer)) {}
  RunningTimer(const RunningTimer&) = delete;
  RunningTimer& operator=(const RunningTimer&) = delete;
  ~RunningTimer() override { running->handler.reset(); }

 private:
  std::shared_ptr<RepeatingTimer> running;
};

void VirtualTime::happenAt(Duration due, std::function<void()> event) {
  const auto later =
      std::upper_bound(events.begin(), events.end(), due,
                       [](Duration wanted, const Event& existing) { return wanted < existing.due; });
  events.insert(later, {due, std::move(event)});
}

void VirtualTime::playUntil(Duration end) {
  if (isSleeping) throw std::logic_error("time is played within a sleep");
  while (true) {
    if (runNext()) continue;
    if (events.empty() && now_ >= end) return;
    goOn(events.empty() ? end : std::max(end, events.back().due));
  }
}

void VirtualTime::sleep(std::chrono::microseconds duration) {
  if (isSleeping) throw std::logic_error("only the main lane sleeps");
  const Duration end = now_ + duration;
  isSleeping = true;
  while (now_ < end) {
    if (!runNext()) goOn(end);
  }
  isSleeping = false;
}

void VirtualTime::post(std::function<void()> block) { mainQueue.push_back(std::move(block)); }

std::unique_ptr<Timer> VirtualTime::startQueueTimer(const std::string& /*label*/,
                                                    std::chrono::milliseconds interval,
                                                    std::function<void()> handler) {
  return start(queueTimers, Duration::zero(), interval, std::move(handler));
}

std::unique_ptr<Timer> VirtualTime::startMainTimer(std::chrono::milliseconds interval,
                                                   std::function<void()> handler) {
  return start(mainTimers, interval, interval, std::move(handler));
}

std::unique_ptr<Timer> VirtualTime::start(TimerList& list, Duration firstDelay, Duration interval,
                                          std::function<void()> handler) const {
  if (interval <= Duration::zero()) throw std::invalid_argument("a timer's interval is positive");
  auto timer = std::make_shared<RepeatingTimer>(RepeatingTimer{
      now_ + firstDelay, interval, std::make_shared<const std::function<void()>>(std::move(handler))});
  list.push_back(timer);
  return std::make_unique<RunningTimer>(std::move(timer));
}

Clock::TimePoint VirtualTime::now() const {
  return startOfTime + std::chrono::duration_cast<system_clock::duration>(now_);
}

std::string VirtualTime::localTime() const {
  const auto today = now() - std::chrono::floor<std::chrono::days>(now());
  const std::chrono::hh_mm_ss time(std::chrono::floor<std::chrono::seconds>(today));
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%02d:%02d:%02d", static_cast<int>(time.hours().count()),
                static_cast<int>(time.minutes().count()), static_cast<int>(time.seconds().count()));
  return text.data();
}

/// Runs what comes first of all that can run at the present instant. Returns whether there was anything.
bool VirtualTime::runNext() {
  if (!isSleeping && (runBlock() || runMainTimer())) return true;
  return runQueueTimer() || runEvent();
}

bool VirtualTime::runBlock() {
  if (mainQueue.empty()) return false;
  const auto block = std::move(mainQueue.front());
  mainQueue.pop_front();
  block();
  return true;
}

bool VirtualTime::runMainTimer() {
  std::erase_if(mainTimers, [](const auto& timer) { return !timer->handler; });
  const auto earliest = std::min_element(mainTimers.begin(), mainTimers.end(),
                                         [](const auto& a, const auto& b) { return a->due < b->due; });
  if (earliest == mainTimers.end() || (*earliest)->due > now_) return false;
  fire(*earliest);
  return true;
}

bool VirtualTime::runQueueTimer() {
  std::erase_if(queueTimers, [](const auto& timer) { return !timer->handler; });
  const auto due = std::find_if(queueTimers.begin(), queueTimers.end(),
                                [this](const auto& timer) { return timer->due <= now_; });
  if (due == queueTimers.end()) return false;
  fire(*due);
  return true;
}

bool VirtualTime::runEvent() {
  if (events.empty() || events.front().due > now_) return false;
  const auto action = std::move(events.front().action);
  events.pop_front();
  action();
  return true;
}

/// One firing stands for all that were missed.
void VirtualTime::fire(const std::shared_ptr<RepeatingTimer>& timer) {
  timer->due = firstPointAfter(now_, timer->due, timer->interval);
  const auto handler = timer->handler;  // it may end its own timer
  (*handler)();
}

/// Sets the clock to the next time at which something is due that can run then, at the latest to `limit`.
void VirtualTime::goOn(Duration limit) {
  Duration next = limit;
  const auto consider = [&next](const TimerList& timers) {
    for (const auto& timer : timers) {
      if (timer->handler) next = std::min(next, timer->due);
    }
  };
  if (!isSleeping) consider(mainTimers);
  consider(queueTimers);
  if (!events.empty()) next = std::min(next, events.front().due);
  now_ = next;
}

}  // namespace vantorel
