#include "QtTimers.h"

#include <algorithm>

#include "MainTimer.h"
#include "QueueTimer.h"

namespace vantorel {
namespace {

std::chrono::milliseconds atLeastOne(std::chrono::milliseconds interval) {
  return std::max(interval, std::chrono::milliseconds(1));
}

}  // namespace

std::unique_ptr<Timer> QtTimers::startQueueTimer(const std::string& label, std::chrono::milliseconds interval,
                                                 std::function<void()> handler) {
  return std::make_unique<QueueTimer>(label, atLeastOne(interval), std::move(handler));
}

std::unique_ptr<Timer> QtTimers::startMainTimer(std::chrono::milliseconds interval,
                                                std::function<void()> handler) {
  return std::make_unique<MainTimer>(atLeastOne(interval), std::move(handler));
}

}  // namespace vantorel
