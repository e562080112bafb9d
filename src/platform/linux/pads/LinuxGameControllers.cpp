#include "LinuxGameControllers.h"

#include <utility>

namespace vantorel {

LinuxGameControllers::LinuxGameControllers(MainQueue& mainQueue, PadPlaces places)
    : mainQueue_(mainQueue), thread_(postingEvents(), std::move(places)) {}

std::vector<std::shared_ptr<Controller>> LinuxGameControllers::controllers() {
  const auto& all = linuxControllers();
  return {all.begin(), all.end()};
}

void LinuxGameControllers::setShouldMonitorBackgroundEvents(bool should) {
  thread_.setMonitorsBackground(should);
}

Subscription LinuxGameControllers::observeConnect(
    std::function<void(const std::shared_ptr<Controller>& controller)> handler) {
  return connects_.add(std::move(handler));
}

Subscription LinuxGameControllers::observeDisconnect(std::function<void()> handler) {
  return disconnects_.add(std::move(handler));
}

const std::vector<std::shared_ptr<LinuxController>>& LinuxGameControllers::linuxControllers() {
  if (!controllers_) controllers_ = thread_.firstScan();
  return *controllers_;
}

void LinuxGameControllers::wake() {
  thread_.perform([] {});
}

void LinuxGameControllers::performOnSdlThread(std::function<void()> block) {
  thread_.perform(std::move(block));
}

bool LinuxGameControllers::isSdlWanted() const { return thread_.isSdlWanted(); }

std::uint64_t LinuxGameControllers::wakeUps() const { return thread_.wakeUps(); }

PadEvents LinuxGameControllers::postingEvents() {
  PadEvents events;
  events.connected = [this](const std::shared_ptr<LinuxController>& controller) {
    mainQueue_.post(lifetime_.guard([this, controller] { didConnect(controller); }));
  };
  events.disconnected = [this](const std::shared_ptr<LinuxController>& controller) {
    mainQueue_.post(lifetime_.guard([this, controller] { didDisconnect(controller); }));
  };
  events.changed = [this](const std::shared_ptr<LinuxController>& controller, GamepadButton button,
                          bool isPressed) {
    mainQueue_.post(lifetime_.guard(
        [controller, button, isPressed] { controller->gamepad()->input(button)->callHandler(isPressed); }));
  };
  return events;
}

void LinuxGameControllers::didConnect(const std::shared_ptr<LinuxController>& controller) {
  linuxControllers();  // those of the start come first
  controllers_->push_back(controller);
  connects_.tell(controller);
}

void LinuxGameControllers::didDisconnect(const std::shared_ptr<LinuxController>& controller) {
  linuxControllers();
  std::erase(*controllers_, controller);
  disconnects_.tell();
}

}  // namespace vantorel
