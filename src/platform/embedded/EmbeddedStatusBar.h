#pragma once

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include "EmbeddedStatusItem.h"
#include "Faults.h"
#include "Published.h"
#include "StatusBar.h"
#include "Transcript.h"

namespace vantorel {

/// A status bar whose menus are used by decree. It is always there.
class EmbeddedStatusBar : public StatusBar {
 public:
  EmbeddedStatusBar(Transcript& record, const Faults& faultList) : transcript(record), faults(faultList) {}
  EmbeddedStatusBar(const EmbeddedStatusBar&) = delete;
  EmbeddedStatusBar& operator=(const EmbeddedStatusBar&) = delete;
  ~EmbeddedStatusBar() override { endProgram(); }

  /// Chooses the menu item of this title: runs its action at once. Returns whether there is such an item
  /// that is enabled.
  bool choose(std::string_view title);

  /// The program ends, and its items with it: their removal is not recorded.
  void endProgram();

  std::unique_ptr<StatusItem> makeStatusItem() override;
  const Published<bool>& isPresent() const override { return present; }

 private:
  friend class EmbeddedStatusItem;
  void remove(const EmbeddedStatusItem& item);

  Transcript& transcript;
  const Faults& faults;
  std::vector<EmbeddedStatusItem*> items;  ///< they take themselves out
  Published<bool> present{true};
};

}  // namespace vantorel
