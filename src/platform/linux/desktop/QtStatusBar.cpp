#include "QtStatusBar.h"

#include "QtStatusItem.h"

namespace vantorel {

QtStatusBar::QtStatusBar(MainQueue& mainQueue) : queue(mainQueue) {
  const auto publish = [this] {
    const bool isThere = hosts.present() != StatusHost::none;
    if (isThere != present.get()) present = isThere;
  };
  hostChange = hosts.present().observe(publish);
  publish();
}

std::unique_ptr<StatusItem> QtStatusBar::makeStatusItem() {
  return std::make_unique<QtStatusItem>(queue, hosts);
}

}  // namespace vantorel
