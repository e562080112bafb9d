#include "ViewUpdates.h"

namespace vantorel {

/// Without an interval it runs when the loop is idle: after the input, and after the first frame.
ViewUpdates::ViewUpdates() {
  refreshSoon.setSingleShot(true);
  refreshSoon.callOnTimeout([this] { refreshView(); });
}

}  // namespace vantorel
