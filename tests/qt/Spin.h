#pragma once

#include <QEventLoop>
#include <QTimer>
#include <chrono>
#include <functional>

#include "WaitUntil.h"

namespace vantorel::test {

/// Runs the event loop until `condition` holds or the generous deadline has passed; answers whether it held.
inline bool spinUntil(const std::function<bool()>& condition) {
  QEventLoop loop;
  QTimer wakeUp;  // for a condition that comes true without an event
  wakeUp.start(std::chrono::milliseconds(5));
  const auto deadline = std::chrono::steady_clock::now() + generousDeadline;
  while (!condition()) {
    if (std::chrono::steady_clock::now() > deadline) return false;
    loop.processEvents(QEventLoop::WaitForMoreEvents);
  }
  return true;
}

}  // namespace vantorel::test
