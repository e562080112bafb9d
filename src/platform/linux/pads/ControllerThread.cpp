#include "ControllerThread.h"

#include <poll.h>
#include <pthread.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <iostream>
#include <stdexcept>
#include <utility>

#include "ConnectionOrder.h"
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

std::unique_ptr<PadLoop> startLoop(const std::string& module, const PadLoopContext& context) {
  try {
    return loadPadLoop(module, context);
  } catch (const std::runtime_error& error) {
    std::cerr << "vantorel: controllers are not available: " << error.what() << std::endl;
    return nullptr;
  }
}

/// The pads that are there, the one connected first in front; `connected` is not called for them.
std::vector<std::shared_ptr<LinuxController>> takePads(PadLoop& loop, PadEvents events) {
  std::vector<std::shared_ptr<LinuxController>> found;
  events.connected = [&](const std::shared_ptr<LinuxController>& controller) { found.push_back(controller); };
  loop.look(events);
  std::stable_sort(found.begin(), found.end(), [](const auto& one, const auto& other) {
    return connectionOrder(one->node()) < connectionOrder(other->node());
  });
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
  DeviceMonitor monitor(places.nodes);  // before the first question, so that no pad slips in between
  const bool mayPadBeThereAtStart = mayPadBeThere(places);
  if (!mayPadBeThereAtStart) {
    found.set_value({});
    sleepUntilSdlIsWanted(monitor, places);
    if (isStopping_.load()) return;
  }
  isSdlWanted_.store(true);
  const auto loop = startLoop(places.module, {commands_, monitor, monitorsBackground_, events});
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
