#include "ViewUpdates.h"

namespace vantorel {

void ViewUpdates::refreshSoon() {
  if (std::exchange(isPending, true)) return;
  const auto refresh = [this] {
    isPending = false;
    refreshView();
  };
  QMetaObject::invokeMethod(&receiver, refresh, Qt::QueuedConnection);
}

}  // namespace vantorel
