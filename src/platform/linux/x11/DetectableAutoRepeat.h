#pragma once

#include "XcbConnection.h"

namespace vantorel {

/// Makes the server send a held key's repeats to `connection` as presses without releases between them, so
/// that a release is always that of the key itself. Without the XKB extension nothing changes.
void useDetectableAutoRepeat(const XcbConnection& connection);

}  // namespace vantorel
