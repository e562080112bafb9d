#pragma once

#include <memory>
#include <optional>
#include <string>

#include "ControllerFacts.h"
#include "ControllerProfile.h"
#include "GameControllers.h"
#include "LinuxGamepad.h"

namespace vantorel {

/// A controller as the rest of the program sees it. It holds nothing of SDL's, so that it may outlive the pad
/// and be released on any thread.
class LinuxController final : public Controller {
 public:
  /// What stays the same as long as the pad is plugged in.
  struct Description {
    std::optional<std::string> name;
    std::string category;
    std::string node;  ///< the device's file, empty when it has none
    ControllerProfile profile = ControllerProfile::none;
    LinuxGamepad::ButtonSet buttons;  ///< used by the extended profile only
  };

  explicit LinuxController(Description description);

  std::optional<std::string> vendorName() const override { return description_.name; }
  std::string productCategory() const override { return description_.category; }
  std::shared_ptr<ExtendedGamepad> extendedGamepad() override { return gamepad_; }
  bool hasMicroGamepad() const override { return description_.profile == ControllerProfile::micro; }

  ControllerProfile profile() const { return description_.profile; }
  /// The device's file, such as /dev/input/event5; empty when it has none.
  const std::string& node() const { return description_.node; }
  ControllerFacts facts() const;

  /// The inputs; null without the extended profile.
  LinuxGamepad* gamepad() const { return gamepad_.get(); }

 private:
  const Description description_;
  const std::shared_ptr<LinuxGamepad> gamepad_;
};

}  // namespace vantorel
