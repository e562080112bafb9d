#include "QtMainQueue.h"

#include <sys/eventfd.h>

#include <utility>

namespace vantorel {

QtMainQueue::QtMainQueue()
    : waiting(eventfd(0, EFD_SEMAPHORE | EFD_NONBLOCK | EFD_CLOEXEC), "eventfd"),
      watcher(waiting.number(), [this] { runNext(); }) {}

QtMainQueue::~QtMainQueue() {
  // What a block holds may post in its own destructor: the blocks go while the queue can still refuse it.
  std::deque<std::function<void()>> left;
  const std::lock_guard lock(mutex);
  isClosed = true;
  left.swap(blocks);
}

void QtMainQueue::post(std::function<void()> block) {
  {
    const std::lock_guard lock(mutex);
    if (isClosed) return;
    blocks.push_back(std::move(block));
  }
  eventfd_write(waiting.number(), 1);
}

void QtMainQueue::runWaiting() {
  std::size_t left = 0;
  {
    const std::lock_guard lock(mutex);
    left = blocks.size();
  }
  for (; left > 0; --left) runNext();
}

void QtMainQueue::runNext() {
  eventfd_t one = 0;
  if (eventfd_read(waiting.number(), &one) != 0) return;
  std::function<void()> block;
  {
    const std::lock_guard lock(mutex);
    block = std::move(blocks.front());
    blocks.pop_front();
  }
  block();
}

}  // namespace vantorel
