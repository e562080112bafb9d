#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <string>

#include "EmbeddedGamepad.h"
#include "GameControllers.h"
#include "MainQueue.h"

namespace vantorel {

enum class ControllerProfile : std::uint8_t { extended, micro, standard };

/// What an embedded controller is.
struct ControllerDescription {
  std::optional<std::string> vendorName;
  std::string productCategory;
  ControllerProfile profile = ControllerProfile::extended;
  /// Those of `leftThumbstick`, `rightThumbstick` and `options` that an extended controller lacks.
  std::set<GamepadButton> missingButtons{};
};

/// A controller that is plugged and operated by decree. Its inputs do nothing while it is unplugged, if they
/// are missing, and on a controller without the extended profile.
class EmbeddedController : public Controller {
 public:
  EmbeddedController(MainQueue& queue, ControllerDescription facts);

  void press(GamepadButton button) { change(button, true); }
  void release(GamepadButton button) { change(button, false); }
  void moveLeftThumbstick(StickPosition position);
  void moveRightThumbstick(StickPosition position);

  bool isPlugged() const { return plugged; }
  /// Unplugging lets go of all inputs and tells nobody.
  void setPlugged(bool isNowPlugged);

  std::optional<std::string> vendorName() const override { return description.vendorName; }
  std::string productCategory() const override { return description.productCategory; }
  std::shared_ptr<ExtendedGamepad> extendedGamepad() override { return gamepad; }
  bool hasMicroGamepad() const override { return description.profile == ControllerProfile::micro; }

 private:
  void change(GamepadButton button, bool isPressed);

  ControllerDescription description;
  std::shared_ptr<EmbeddedGamepad> gamepad;  ///< null without the extended profile
  bool plugged = false;
};

}  // namespace vantorel
