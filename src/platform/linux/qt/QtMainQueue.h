#pragma once

#include <deque>
#include <functional>
#include <mutex>

#include "Descriptor.h"
#include "FileDescriptorWatcher.h"
#include "MainQueue.h"

namespace vantorel {

/// The main queue on Qt's event loop: each turn of the loop runs one block by itself, so that the window, the
/// timers and whatever else lives there get their turn between two blocks.
///
/// Made and destroyed on the main thread, once the QCoreApplication is there. Blocks that are left at the end
/// do not run.
class QtMainQueue final : public MainQueue {
 public:
  QtMainQueue();
  QtMainQueue(const QtMainQueue&) = delete;
  QtMainQueue& operator=(const QtMainQueue&) = delete;
  ~QtMainQueue() override;

  void post(std::function<void()> block) override;

  /// Runs the blocks that wait now, without a turn of the loop between them. Main thread.
  void runWaiting();

 private:
  void runNext();

  std::mutex mutex;
  std::deque<std::function<void()>> blocks;  // guarded by the mutex
  bool isClosed = false;                     // guarded by the mutex
  Descriptor waiting;                        // counts the blocks; readable while there is one
  FileDescriptorWatcher watcher;
};

}  // namespace vantorel
