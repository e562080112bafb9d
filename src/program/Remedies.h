#pragma once

#include <string>

#include "Remedy.h"

namespace vantorel {

/// For a session without an X server that this program could post events into.
Remedy remedyForMissingXServer();

/// For an X server without the extension that events are posted through.
Remedy remedyForMissingExtension();

/// For a desktop without a browser that `address` could be opened in.
Remedy remedyForMissingBrowser(const std::string& address);

}  // namespace vantorel
