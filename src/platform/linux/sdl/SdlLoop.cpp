#include "SdlLoop.h"

#include <poll.h>

#include <algorithm>
#include <iostream>
#include <stdexcept>
#include <string>

namespace vantorel {
namespace {

using Clock = std::chrono::steady_clock;

/// SDL listens for devices by itself, and its message may arrive a little later than ours.
constexpr std::chrono::milliseconds secondLookDelay(30);

}  // namespace

void SdlLoop::look(const PadEvents& events) {
  pads_.update(events);
  carryOutLines(events);
  lookAgainSoon();  // a pad that is just being plugged in has called for SDL, perhaps
}

void SdlLoop::turn() {
  sleep();
  const bool isPadGoing = !pads_.drainNodes();
  if (context_.monitor.drain() || isPadGoing) {
    lookAgainSoon();
  } else if (secondLook_ && *secondLook_ <= Clock::now()) {
    secondLook_.reset();
  }
  pads_.update(context_.events);
  carryOutCommands();
  carryOutLines(context_.events);
}

void SdlLoop::lookAgainSoon() { secondLook_ = Clock::now() + secondLookDelay; }

void SdlLoop::sleep() {
  std::vector<pollfd> watched{{context_.commands.descriptor(), POLLIN, 0}, {pipe_.descriptor(), POLLIN, 0}};
  for (const int descriptor : context_.monitor.descriptors()) watched.push_back({descriptor, POLLIN, 0});
  pads_.addTo(watched);
  int timeout = -1;
  if (secondLook_) {
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(*secondLook_ - Clock::now());
    timeout = static_cast<int>(std::clamp(left, std::chrono::milliseconds(0), secondLookDelay).count());
  }
  poll(watched.data(), watched.size(), timeout);
}

void SdlLoop::carryOutCommands() {
  CommandQueue::Command command;
  do {
    command = context_.commands.pop();
    session_.setMonitorsBackground(context_.monitorsBackground.load());  // at least as new as `command`
    if (command) {
      command();
      pads_.update(context_.events);
    }
  } while (command);
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
