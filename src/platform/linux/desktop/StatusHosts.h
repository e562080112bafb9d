#pragma once

#include <cstdint>

#include "EmbeddingTrays.h"
#include "NotifierHosts.h"
#include "Published.h"
#include "Subscription.h"

namespace vantorel {

/// What shows status items on this desktop.
enum class StatusHost : std::uint8_t {
  none,
  notifier,   ///< a panel that reads status-notifier items from the session bus
  embedding,  ///< a tray that embeds icon windows, where there is no such panel
};

/// Follows what shows status items on this desktop, which may come, go and change at any time. Nothing waits
/// for an answer: at first there is none. Main thread.
class StatusHosts {
 public:
  StatusHosts();

  const Published<StatusHost>& present() const { return host; }

  /// The window of the embedding tray, or XCB_NONE.
  xcb_window_t embeddingManager() const { return trays.manager(); }

 private:
  void decide();

  NotifierHosts notifiers;
  EmbeddingTrays trays;
  Published<StatusHost> host{StatusHost::none};
  Subscription notifierChange;
  Subscription trayChange;
};

}  // namespace vantorel
