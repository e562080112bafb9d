#include "LinuxController.h"

#include <utility>

namespace vantorel {

LinuxController::LinuxController(Description description)
    : description_(std::move(description)),
      gamepad_(description_.profile == ControllerProfile::extended
                   ? std::make_shared<LinuxGamepad>(description_.buttons)
                   : nullptr) {}

ControllerFacts LinuxController::facts() const {
  return {description_.name.value_or(""), description_.category,
          std::string(displayName(description_.profile)), description_.node};
}

}  // namespace vantorel
