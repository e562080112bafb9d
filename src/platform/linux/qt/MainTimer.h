#pragma once

#include "FileDescriptorWatcher.h"
#include "KernelTimer.h"
#include "Timers.h"

namespace vantorel {

/// A timer of the main thread, on Qt's event loop; it fires first after one interval.
class MainTimer final : public Timer {
 public:
  MainTimer(std::chrono::milliseconds interval, std::function<void()> handler);

 private:
  KernelTimer timer;
  FileDescriptorWatcher watcher;
};

}  // namespace vantorel
