#include "ControllerProfile.h"

namespace vantorel {

std::string_view displayName(ControllerProfile profile) {
  switch (profile) {
    case ControllerProfile::extended:
      return "extended";
    case ControllerProfile::micro:
      return "micro";
    case ControllerProfile::none:
      break;
  }
  return "none";
}

}  // namespace vantorel
