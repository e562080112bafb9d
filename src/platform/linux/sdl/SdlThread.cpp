#include "SdlThread.h"

#include <pthread.h>

#include <csignal>
#include <iostream>
#include <stdexcept>
#include <utility>

#include "SdlLoop.h"

namespace vantorel {
namespace {

/// Signals are for the main thread.
void blockSignals() {
  sigset_t all;
  sigfillset(&all);
  pthread_sigmask(SIG_BLOCK, &all, nullptr);
}

std::unique_ptr<SdlLoop> startLoop(CommandQueue& commands, const PadEvents& events) {
  try {
    return std::make_unique<SdlLoop>(commands, events);
  } catch (const std::runtime_error& error) {
    std::cerr << "vantorel: controllers are not available: " << error.what() << std::endl;
    return nullptr;
  }
}

}  // namespace

SdlThread::SdlThread(PadEvents events) {
  std::promise<std::vector<std::shared_ptr<SdlController>>> found;
  firstScan_ = found.get_future();
  thread_ = std::thread([this, events = std::move(events), found = std::move(found)]() mutable {
    run(events, std::move(found));
  });
}

SdlThread::~SdlThread() {
  isStopping_.store(true);
  perform([] {});
  thread_.join();
}

void SdlThread::run(const PadEvents& events,
                    std::promise<std::vector<std::shared_ptr<SdlController>>> found) {
  blockSignals();
  pthread_setname_np(pthread_self(), "controllers");
  const std::unique_ptr<SdlLoop> loop = startLoop(commands_, events);
  found.set_value(loop ? loop->firstScan() : std::vector<std::shared_ptr<SdlController>>{});
  while (loop && !isStopping_.load()) {
    loop->turn();
    ++wakeUps_;
  }
}

}  // namespace vantorel
