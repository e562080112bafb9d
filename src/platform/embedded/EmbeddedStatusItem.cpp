#include "EmbeddedStatusItem.h"

#include <utility>

#include "EmbeddedStatusBar.h"

namespace vantorel {
namespace {

/// Key equivalents are lower-case letters.
std::string upperCase(std::string letters) {
  for (char& letter : letters) {
    if (letter >= 'a' && letter <= 'z') letter = static_cast<char>(letter - 'a' + 'A');
  }
  return letters;
}

std::string text(const MenuItem& item) {
  if (item.isSeparator()) return "--";
  std::string text = item.title;
  if (!item.isEnabled) text += " (disabled)";
  if (!item.keyEquivalent.empty()) text += " ⌘" + upperCase(item.keyEquivalent);
  return text;
}

}  // namespace

EmbeddedStatusItem::EmbeddedStatusItem(EmbeddedStatusBar& statusBar, Transcript& record)
    : bar(&statusBar), transcript(record) {
  transcript.write("status item created");
}

EmbeddedStatusItem::~EmbeddedStatusItem() {
  if (bar == nullptr) return;
  transcript.write("status item removed");
  bar->remove(*this);
}

void EmbeddedStatusItem::setTemplateIcon(const std::string& /*symbolName*/,
                                         const std::string& /*accessibilityDescription*/) {}

void EmbeddedStatusItem::setMenu(Menu menu) {
  attached = std::move(menu);
  std::string line;
  for (const MenuItem& item : attached) line += (line.empty() ? "menu " : " | ") + text(item);
  transcript.write(line.empty() ? "menu " : line);
}

}  // namespace vantorel
