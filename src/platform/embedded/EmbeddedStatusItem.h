#pragma once

#include <string>

#include "StatusBar.h"
#include "Transcript.h"

namespace vantorel {

class EmbeddedStatusBar;

/// An item of the embedded status bar; its menus and its removal are recorded.
class EmbeddedStatusItem : public StatusItem {
 public:
  EmbeddedStatusItem(EmbeddedStatusBar& statusBar, Transcript& record);
  EmbeddedStatusItem(const EmbeddedStatusItem&) = delete;
  EmbeddedStatusItem& operator=(const EmbeddedStatusItem&) = delete;
  ~EmbeddedStatusItem() override;

  const Menu& menu() const { return attached; }

  /// The bar is gone from the item: its removal is not recorded.
  void leaveBar() { bar = nullptr; }

  /// Icons are not recorded.
  void setTemplateIcon(const std::string& symbolName, const std::string& accessibilityDescription) override;
  void setMenu(Menu menu) override;

 private:
  EmbeddedStatusBar* bar;  ///< null once the item has left it
  Transcript& transcript;
  Menu attached;
};

}  // namespace vantorel
