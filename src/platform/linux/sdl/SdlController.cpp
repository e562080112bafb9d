#include "SdlController.h"

#include <utility>

namespace vantorel {

SdlController::SdlController(Description description)
    : description_(std::move(description)),
      gamepad_(description_.profile == ControllerProfile::extended
                   ? std::make_shared<SdlGamepad>(description_.buttons)
                   : nullptr) {}

ControllerFacts SdlController::facts() const {
  return {description_.name.value_or(""), description_.category,
          std::string(displayName(description_.profile)), description_.node};
}

}  // namespace vantorel
