#include "ControllerThread.h"

#include <poll.h>
#include <pthread.h>

#include <array>
#include <csignal>
#include <iostream>
#include <optional>
#include <stdexcept>
#include <utility>

#include "PadModule.h"
#include "PadPresence.h"

namespace vantorel {
namespace {

/// Signals are for the main thread.
void blockSignals() {
  sigset_t all;
  sigfillset(&all);
  pthread_sigmask(SIG_BLOCK, &all, nullptr);
}

/// What `attempt` gives; without a value, and with a word on standard error, when it fails.
template <class Attempt>
auto reportingFailure(Attempt attempt) -> decltype(attempt()) {
  try {
    return attempt();
  } catch (const std::runtime_error& error) {
    std::cerr << "vantorel: controllers are not available: " << error.what() << std::endl;
    return {};
  }
}

/// The pads that are there; `connected` is not called for them.
std::vector<std::shared_ptr<LinuxController>> takePads(PadLoop& loop, PadEvents events) {
  std::vector<std::shared_ptr<LinuxController>> found;
  events.connected = [&](const std::shared_ptr<LinuxController>& controller) { found.push_back(controller); };
  loop.look(events);
  return found;
}

}  // namespace

ControllerThread::ControllerThread(PadEvents events, PadPlaces places) {
  std::promise<Pads> found;
  firstScan_ = found.get_future();
  thread_ = std::thread([this, events = std::move(events), places = std::move(places),
                         found = std::move(found)]() mutable { run(events, places, std::move(found)); });
}

ControllerThread::~ControllerThread() {
  isStopping_.store(true);
  perform([] {});
  thread_.join();
}

void ControllerThread::setMonitorsBackground(bool should) {
  monitorsBackground_.store(should);
  if (isSdlWanted()) perform([] {});
}

void ControllerThread::run(const PadEvents& events, const PadPlaces& places, std::promise<Pads> found) {
  blockSignals();
  pthread_setname_np(pthread_self(), "controllers");
  const auto module = reportingFailure([&] { return std::make_optional<PadModule>(places.module); });
  if (!module) return found.set_value({});
  DeviceMonitor monitor(places.nodes);  // before the first question, so that no pad slips in between
  const bool mayPadBeThereAtStart = mayPadBeThere(places);
  if (!mayPadBeThereAtStart) {
    found.set_value({});
    sleepUntilSdlIsWanted(monitor, places);
    if (isStopping_.load()) return;
  }
  isSdlWanted_.store(true);
  const PadLoopContext context{commands_, monitor, monitorsBackground_, events};
  const auto loop = reportingFailure([&] { return module->makeLoop(context); });
  if (mayPadBeThereAtStart) {
    found.set_value(loop ? takePads(*loop, events) : Pads{});
  } else if (loop) {
    loop->look(events);
  }
  while (loop && !isStopping_.load()) {
    loop->turn();
    ++wakeUps_;
  }
}

void ControllerThread::sleepUntilSdlIsWanted(DeviceMonitor& monitor, const PadPlaces& places) {
  bool isWanted = false;
  while (!isWanted) {
    const auto [udev, directory] = monitor.descriptors();
    std::array<pollfd, 3> watched{
        {{commands_.descriptor(), POLLIN, 0}, {udev, POLLIN, 0}, {directory, POLLIN, 0}}};
    poll(watched.data(), watched.size(), -1);
    ++wakeUps_;
    monitor.drain();
    const bool doesCommandWait = watched.front().revents != 0;
    isWanted = doesCommandWait || mayPadBeThere(places);
  }
}

}  // namespace vantorel
