#include "CommandQueue.h"

#include <sys/eventfd.h>

#include <cerrno>
#include <system_error>
#include <utility>

namespace vantorel {

CommandQueue::CommandQueue() : bell_(eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC)) {
  if (!bell_.isOpen()) throw std::system_error(errno, std::generic_category(), "eventfd");
}

void CommandQueue::push(Command command) {
  if (!command) return;
  {
    const std::lock_guard lock(mutex_);
    commands_.push_back(std::move(command));
  }
  eventfd_write(bell_.descriptor(), 1);
}

CommandQueue::Command CommandQueue::pop() {
  bell_.drain();
  const std::lock_guard lock(mutex_);
  if (commands_.empty()) return nullptr;
  Command first = std::move(commands_.front());
  commands_.pop_front();
  return first;
}

}  // namespace vantorel
