#pragma once

#include "Remedy.h"

namespace vantorel {

/// For a session without an X server that this program could post events into.
Remedy remedyForMissingXServer();

/// For an X server without the extension that events are posted through.
Remedy remedyForMissingExtension();

}  // namespace vantorel
