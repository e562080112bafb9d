#include "SdlLoop.h"

#include <poll.h>

#include <algorithm>
#include <iostream>
#include <stdexcept>
#include <string>
#include <utility>

#include "ConnectionOrder.h"

namespace vantorel {
namespace {

using Clock = std::chrono::steady_clock;

/// SDL listens for devices by itself, and its message may arrive a little later than ours.
constexpr std::chrono::milliseconds secondLookDelay(30);

}  // namespace

SdlLoop::SdlLoop(CommandQueue& commands, PadEvents events)
    : commands_(commands), events_(std::move(events)) {}

std::vector<std::shared_ptr<SdlController>> SdlLoop::firstScan() {
  std::vector<std::shared_ptr<SdlController>> found;
  PadEvents events = events_;
  events.connected = [&](const std::shared_ptr<SdlController>& controller) { found.push_back(controller); };
  pads_.update(events);
  carryOutLines(events);
  std::stable_sort(found.begin(), found.end(), [](const auto& one, const auto& other) {
    return connectionOrder(one->node()) < connectionOrder(other->node());
  });
  return found;
}

void SdlLoop::turn() {
  sleep();
  const bool isPadGoing = !pads_.drainNodes();
  if (monitor_.drain() || isPadGoing) {
    secondLook_ = Clock::now() + secondLookDelay;
  } else if (secondLook_ && *secondLook_ <= Clock::now()) {
    secondLook_.reset();
  }
  pads_.update(events_);
  carryOutCommands();
  carryOutLines(events_);
}

void SdlLoop::sleep() {
  std::vector<pollfd> watched{{commands_.descriptor(), POLLIN, 0}, {pipe_.descriptor(), POLLIN, 0}};
  for (const int descriptor : monitor_.descriptors()) watched.push_back({descriptor, POLLIN, 0});
  pads_.addTo(watched);
  int timeout = -1;
  if (secondLook_) {
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(*secondLook_ - Clock::now());
    timeout = static_cast<int>(std::clamp(left, std::chrono::milliseconds(0), secondLookDelay).count());
  }
  poll(watched.data(), watched.size(), timeout);
}

void SdlLoop::carryOutCommands() {
  while (const CommandQueue::Command command = commands_.pop()) {
    command();
    pads_.update(events_);
  }
}

void SdlLoop::carryOutLines(const PadEvents& events) {
  for (const std::string& line : pipe_.takeLines()) {
    try {
      virtualPads_.execute(line);
    } catch (const std::exception& error) {
      std::cerr << "vantorel: virtual pads: " << line << ": " << error.what() << std::endl;
    }
    pads_.update(events);
  }
}

}  // namespace vantorel
