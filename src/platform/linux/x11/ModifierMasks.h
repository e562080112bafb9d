#pragma once

#include <cstdint>

#include "XcbConnection.h"

namespace vantorel {

/// The bits of an X key event's state that the present keymap gives to some modifiers; 0 for one that it
/// lacks.
struct ModifierMasks {
  std::uint16_t super = 0;
  std::uint16_t alt = 0;
  std::uint16_t locks = 0;  ///< Caps, Num and Scroll Lock together

  friend bool operator==(const ModifierMasks&, const ModifierMasks&) = default;
};

/// Asks the server; everything is 0 when it does not answer.
ModifierMasks readModifierMasks(const XcbConnection& connection);

}  // namespace vantorel
