#include "EmbeddedGameControllers.h"

#include <utility>

namespace vantorel {

std::shared_ptr<EmbeddedController> EmbeddedGameControllers::declare(ControllerDescription description) {
  declared.push_back(std::make_shared<EmbeddedController>(mainQueue, std::move(description)));
  return declared.back();
}

void EmbeddedGameControllers::plug(const std::shared_ptr<EmbeddedController>& controller) {
  if (controller->isPlugged()) return;
  controller->setPlugged(true);
  connected.push_back(controller);
  tellOfConnection(controller);
}

void EmbeddedGameControllers::unplug(const std::shared_ptr<EmbeddedController>& controller) {
  if (!controller->isPlugged()) return;
  controller->setPlugged(false);
  std::erase(connected, controller);
  mainQueue.post([this] { disconnectObservers.tell(); });
}

void EmbeddedGameControllers::plugNothing() { tellOfConnection(nullptr); }

void EmbeddedGameControllers::setShouldMonitorBackgroundEvents(bool /*should*/) {}

Subscription EmbeddedGameControllers::observeConnect(
    std::function<void(const std::shared_ptr<Controller>& controller)> handler) {
  return connectObservers.add(std::move(handler));
}

Subscription EmbeddedGameControllers::observeDisconnect(std::function<void()> handler) {
  return disconnectObservers.add(std::move(handler));
}

void EmbeddedGameControllers::tellOfConnection(const std::shared_ptr<Controller>& controller) {
  mainQueue.post([this, controller] { connectObservers.tell(controller); });
}

}  // namespace vantorel
