#pragma once

#include <string>

namespace vantorel {

/// What a list of controllers says of one.
struct ControllerFacts {
  std::string name;  ///< empty when it has none
  std::string category;
  std::string profile;  ///< "extended", "micro" or "none"
  std::string node;     ///< the device's file, empty when it has none
};

}  // namespace vantorel
