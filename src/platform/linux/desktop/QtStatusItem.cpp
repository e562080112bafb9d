#include "QtStatusItem.h"

#include <utility>

#include "EmbeddedFace.h"
#include "NotifierFace.h"

namespace vantorel {

QtStatusItem::QtStatusItem(MainQueue& mainQueue, const StatusHosts& statusHosts)
    : queue(mainQueue), hosts(statusHosts) {
  hostChange = hosts.present().observe([this] { showFace(); });
  showFace();
}

void QtStatusItem::setTemplateIcon(const std::string& symbolName,
                                   const std::string& accessibilityDescription) {
  icon = TemplateIcon(symbolName);
  description = QString::fromStdString(accessibilityDescription);
  if (face) face->setIcon(icon, description);
}

void QtStatusItem::setMenu(Menu newMenu) {
  menu = std::move(newMenu);
  if (face) face->setMenu(menu);
}

void QtStatusItem::showFace() {
  face.reset();
  face = makeFace();
  if (!face) return;
  face->setMenu(menu);
  face->setIcon(icon, description);
}

std::unique_ptr<StatusFace> QtStatusItem::makeFace() const {
  switch (hosts.present()) {
    case StatusHost::notifier:
      return std::make_unique<NotifierFace>(queue);
    case StatusHost::embedding:
      return std::make_unique<EmbeddedFace>(queue, *X11Session::current(), hosts.embeddingManager());
    case StatusHost::none:
      break;
  }
  return nullptr;
}

}  // namespace vantorel
