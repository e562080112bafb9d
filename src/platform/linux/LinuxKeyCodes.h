#pragma once

#include <cstdint>
#include <optional>

namespace vantorel {

/// The code that Linux's input events give (`KEY_…`) to the key with the macOS virtual key code `macKeyCode`:
/// the same physical key of an ANSI keyboard, whatever the layout prints on it. None for a key that no button
/// can send. Any thread.
std::optional<std::uint16_t> linuxKeyCode(std::uint16_t macKeyCode);

}  // namespace vantorel
