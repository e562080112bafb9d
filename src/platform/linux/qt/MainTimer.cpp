#include "MainTimer.h"

#include <utility>

namespace vantorel {

MainTimer::MainTimer(std::chrono::milliseconds interval, std::function<void()> handler)
    : timer(interval, interval), watcher(timer.number(), [this, fire = std::move(handler)] {
        if (timer.take()) fire();  // which may destroy this timer
      }) {}

}  // namespace vantorel
