#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <optional>

#include "LinuxKeyCodes.h"

namespace vantorel {

/// The X key code of the key with the macOS virtual key code `macKeyCode`: X servers on Linux number the keys
/// as the kernel does, from 8 on. None for an unknown key.
inline std::optional<xcb_keycode_t> xcbKeyCode(std::uint16_t macKeyCode) {
  const std::optional<std::uint16_t> code = linuxKeyCode(macKeyCode);
  if (!code || *code > 255 - 8) return std::nullopt;
  return static_cast<xcb_keycode_t>(*code + 8);
}

}  // namespace vantorel
