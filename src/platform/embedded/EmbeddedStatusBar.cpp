#include "EmbeddedStatusBar.h"

#include <utility>

namespace vantorel {

bool EmbeddedStatusBar::choose(std::string_view title) {
  for (const EmbeddedStatusItem* const item : items) {
    for (const MenuItem& entry : item->menu()) {
      if (entry.isSeparator() || !entry.isEnabled || entry.title != title) continue;
      const auto action = entry.action;  // it may replace the menu
      if (action) action();
      return true;
    }
  }
  return false;
}

void EmbeddedStatusBar::endProgram() {
  for (EmbeddedStatusItem* const item : std::exchange(items, {})) item->leaveBar();
}

std::unique_ptr<StatusItem> EmbeddedStatusBar::makeStatusItem() {
  if (faults.contains(Fault::statusItem)) return nullptr;
  auto item = std::make_unique<EmbeddedStatusItem>(*this, transcript);
  items.push_back(item.get());
  return item;
}

void EmbeddedStatusBar::remove(const EmbeddedStatusItem& item) { std::erase(items, &item); }

}  // namespace vantorel
