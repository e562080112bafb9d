#include "QueueTimer.h"

#include <poll.h>
#include <pthread.h>
#include <sys/eventfd.h>
#include <sys/resource.h>

#include <array>
#include <cerrno>
#include <utility>

#include "Descriptor.h"
#include "KernelTimer.h"

namespace vantorel {
namespace {

using namespace std::chrono_literals;

/// Names the calling thread, and lets it go before others when the user may do that.
void prepareThread(const std::string& label) {
  constexpr std::size_t longestName = 15;
  constexpr int niceness = -10;
  pthread_setname_np(pthread_self(), label.substr(0, longestName).c_str());
  setpriority(PRIO_PROCESS, static_cast<id_t>(gettid()), niceness);
}

}  // namespace

/// What the timer shares with its thread. The thread may outlive the timer, when the handler destroys it.
struct QueueTimer::Queue {
  Queue(std::chrono::milliseconds interval, std::function<void()> firingHandler)
      : timer(1ns, interval),
        end(eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC), "eventfd"),
        handler(std::move(firingHandler)) {}

  /// Fires until the end is asked for.
  void run() {
    std::array<pollfd, 2> waits{{{.fd = end.number(), .events = POLLIN, .revents = 0},
                                 {.fd = timer.number(), .events = POLLIN, .revents = 0}}};
    for (;;) {
      if (poll(waits.data(), waits.size(), -1) < 0) continue;  // a signal
      eventfd_t asked = 0;
      if (eventfd_read(end.number(), &asked) == 0) return;
      if (timer.take()) handler();
    }
  }

  KernelTimer timer;
  Descriptor end;  // readable once the timer is to end
  const std::function<void()> handler;
};

QueueTimer::QueueTimer(const std::string& label, std::chrono::milliseconds interval,
                       std::function<void()> handler)
    : queue(std::make_shared<Queue>(interval, std::move(handler))), thread([shared = queue, label] {
        prepareThread(label);
        shared->run();
      }) {}

QueueTimer::~QueueTimer() {
  eventfd_write(queue->end.number(), 1);
  if (thread.get_id() == std::this_thread::get_id()) {
    thread.detach();
  } else {
    thread.join();
  }
}

}  // namespace vantorel
