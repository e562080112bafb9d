#pragma once

#include <cstdint>
#include <optional>

#include "XcbConnection.h"

namespace vantorel {

/// Makes `connection` one that knows the XKB extension: a held key's repeats come as presses without releases
/// between them, and changes of the keymap as events of the type returned instead of MappingNotify. None
/// where the server lacks the extension; nothing changes then.
std::optional<std::uint8_t> becomeXkbClient(const XcbConnection& connection);

}  // namespace vantorel
