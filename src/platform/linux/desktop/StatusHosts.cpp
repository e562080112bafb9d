#include "StatusHosts.h"

namespace vantorel {

StatusHosts::StatusHosts() {
  notifierChange = notifiers.isThere().observe([this] { decide(); });
  trayChange = trays.manager().observe([this] { decide(); });
  decide();
}

void StatusHosts::decide() {
  const std::optional<bool> notifier = notifiers.isThere();
  StatusHost found = StatusHost::none;
  if (notifier.value_or(false)) {
    found = StatusHost::notifier;
  } else if (notifier && trays.manager() != xcb_window_t{XCB_NONE}) {
    found = StatusHost::embedding;
  }
  if (found != host.get()) host = found;
}

}  // namespace vantorel
