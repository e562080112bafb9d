#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "GamepadButton.h"
#include "Subscription.h"

namespace vantorel {

/// One button of a controller.
class ButtonInput {
 public:
  using PressedChangedHandler = std::function<void(bool isPressed)>;

  virtual ~ButtonInput() = default;

  /// Any thread.
  virtual bool isPressed() const = 0;

  /// `handler` is called on the main queue with the new state whenever it changes; it replaces the handler
  /// set before. Main thread.
  virtual void setPressedChangedHandler(PressedChangedHandler handler) = 0;
};

/// The deflection of a thumbstick: -1 to 1 each, positive to the right and upwards.
struct StickPosition {
  float x = 0;
  float y = 0;
};

/// The inputs of a full-sized gamepad. Those of a pad that is gone read as neutral.
class ExtendedGamepad {
 public:
  virtual ~ExtendedGamepad() = default;

  /// The input of `button`; null only for a `leftThumbstick`, `rightThumbstick` or `options` that the pad
  /// lacks. Valid as long as this object. Any thread.
  virtual ButtonInput* input(GamepadButton button) = 0;

  /// Any thread.
  virtual StickPosition leftThumbstick() const = 0;
  virtual StickPosition rightThumbstick() const = 0;
};

/// A connected controller.
class Controller {
 public:
  virtual ~Controller() = default;

  virtual std::optional<std::string> vendorName() const = 0;
  virtual std::string productCategory() const = 0;

  /// The extended profile, or null. The caller may hold it weakly: it lives as long as the controller.
  virtual std::shared_ptr<ExtendedGamepad> extendedGamepad() = 0;
  virtual bool hasMicroGamepad() const = 0;
};

/// The service that knows the connected controllers. Main thread.
class GameControllers {
 public:
  virtual ~GameControllers() = default;

  /// The connected controllers, the one connected first in front.
  virtual std::vector<std::shared_ptr<Controller>> controllers() = 0;

  /// Whether input arrives while another application is in front.
  virtual void setShouldMonitorBackgroundEvents(bool should) = 0;

  /// `handler` is called on the main queue when a controller connects; null stands for something that is no
  /// controller.
  [[nodiscard]] virtual Subscription observeConnect(
      std::function<void(const std::shared_ptr<Controller>& controller)> handler) = 0;

  /// `handler` is called on the main queue when a controller disconnects.
  [[nodiscard]] virtual Subscription observeDisconnect(std::function<void()> handler) = 0;
};

}  // namespace vantorel
