#include "SdlGameControllers.h"

#include <SDL.h>

#include <utility>

namespace vantorel {

SdlGameControllers::SdlGameControllers(MainQueue& mainQueue)
    : mainQueue_(mainQueue), thread_(postingEvents()) {}

std::vector<std::shared_ptr<Controller>> SdlGameControllers::controllers() {
  const auto& all = sdlControllers();
  return {all.begin(), all.end()};
}

void SdlGameControllers::setShouldMonitorBackgroundEvents(bool should) {
  performOnSdlThread([should] {
    SDL_SetHintWithPriority(SDL_HINT_JOYSTICK_ALLOW_BACKGROUND_EVENTS, should ? "1" : "0", SDL_HINT_OVERRIDE);
  });
}

Subscription SdlGameControllers::observeConnect(
    std::function<void(const std::shared_ptr<Controller>& controller)> handler) {
  return connects_.add(std::move(handler));
}

Subscription SdlGameControllers::observeDisconnect(std::function<void()> handler) {
  return disconnects_.add(std::move(handler));
}

const std::vector<std::shared_ptr<SdlController>>& SdlGameControllers::sdlControllers() {
  if (!controllers_) controllers_ = thread_.firstScan();
  return *controllers_;
}

void SdlGameControllers::wake() {
  thread_.perform([] {});
}

void SdlGameControllers::performOnSdlThread(std::function<void()> block) {
  thread_.perform(std::move(block));
}

std::uint64_t SdlGameControllers::wakeUps() const { return thread_.wakeUps(); }

PadEvents SdlGameControllers::postingEvents() {
  PadEvents events;
  events.connected = [this](const std::shared_ptr<SdlController>& controller) {
    mainQueue_.post(lifetime_.guard([this, controller] { didConnect(controller); }));
  };
  events.disconnected = [this](const std::shared_ptr<SdlController>& controller) {
    mainQueue_.post(lifetime_.guard([this, controller] { didDisconnect(controller); }));
  };
  events.changed = [this](const std::shared_ptr<SdlController>& controller, GamepadButton button,
                          bool isPressed) {
    mainQueue_.post(lifetime_.guard(
        [controller, button, isPressed] { controller->gamepad()->input(button)->callHandler(isPressed); }));
  };
  return events;
}

void SdlGameControllers::didConnect(const std::shared_ptr<SdlController>& controller) {
  sdlControllers();  // those of the start come first
  controllers_->push_back(controller);
  connects_.tell(controller);
}

void SdlGameControllers::didDisconnect(const std::shared_ptr<SdlController>& controller) {
  sdlControllers();
  std::erase(*controllers_, controller);
  disconnects_.tell();
}

}  // namespace vantorel
