#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "EmbeddedController.h"
#include "GameControllers.h"
#include "MainQueue.h"
#include "Observers.h"

namespace vantorel {

/// The service for controllers that are declared, plugged and unplugged by decree. Its list changes at once;
/// whoever observes it when the main queue gets to it is told.
class EmbeddedGameControllers : public GameControllers {
 public:
  explicit EmbeddedGameControllers(MainQueue& queue) : mainQueue(queue) {}

  /// A new controller, unplugged; it lives as long as this object.
  std::shared_ptr<EmbeddedController> declare(ControllerDescription description);

  /// Connects `controller` as the last one, if it is not connected.
  void plug(const std::shared_ptr<EmbeddedController>& controller);

  /// Disconnects `controller`, if it is connected.
  void unplug(const std::shared_ptr<EmbeddedController>& controller);

  /// Tells of the connection of something that is no controller.
  void plugNothing();

  std::vector<std::shared_ptr<Controller>> controllers() override { return connected; }
  /// Input always arrives here.
  void setShouldMonitorBackgroundEvents(bool should) override;
  [[nodiscard]] Subscription observeConnect(
      std::function<void(const std::shared_ptr<Controller>& controller)> handler) override;
  [[nodiscard]] Subscription observeDisconnect(std::function<void()> handler) override;

 private:
  void tellOfConnection(const std::shared_ptr<Controller>& controller);

  MainQueue& mainQueue;
  std::vector<std::shared_ptr<EmbeddedController>> declared;
  std::vector<std::shared_ptr<Controller>> connected;
  Observers<const std::shared_ptr<Controller>&> connectObservers;
  Observers<> disconnectObservers;
};

}  // namespace vantorel
