#pragma once

#include <memory>

#include "MainQueue.h"
#include "StatusBar.h"
#include "StatusFace.h"
#include "StatusHosts.h"
#include "Subscription.h"

namespace vantorel {

/// A status item that is shown by whatever shows status items at present, and moves when that changes.
/// Main thread.
class QtStatusItem : public StatusItem {
 public:
  /// Both outlive the item.
  QtStatusItem(MainQueue& mainQueue, const StatusHosts& statusHosts);

  void setTemplateIcon(const std::string& symbolName, const std::string& accessibilityDescription) override;
  void setMenu(Menu newMenu) override;

 private:
  void showFace();
  std::unique_ptr<StatusFace> makeFace() const;

  MainQueue& queue;
  const StatusHosts& hosts;
  TemplateIcon icon;
  QString description;
  Menu menu;
  std::unique_ptr<StatusFace> face;
  Subscription hostChange;
};

}  // namespace vantorel
