#pragma once

#include <memory>

#include "MainQueue.h"
#include "Published.h"
#include "StatusBar.h"
#include "StatusHosts.h"
#include "Subscription.h"

namespace vantorel {

/// The desktop's status bar: a panel that reads status-notifier items or, where there is none, a tray that
/// embeds icon windows. Needs a QApplication; outlives its items. Main thread.
class QtStatusBar : public StatusBar {
 public:
  explicit QtStatusBar(MainQueue& mainQueue);

  /// Never null: the item shows once there is something to show it.
  std::unique_ptr<StatusItem> makeStatusItem() override;

  /// False at first: it becomes known with the first turns of the event loop.
  const Published<bool>& isPresent() const override { return present; }

 private:
  MainQueue& queue;
  StatusHosts hosts;
  Published<bool> present{false};
  Subscription hostChange;
};

}  // namespace vantorel
