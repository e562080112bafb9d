#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "Published.h"

namespace vantorel {

/// One entry of a menu.
struct MenuItem {
  std::string title;  ///< empty for a separator
  bool isEnabled = true;
  std::string keyEquivalent;     ///< a lower-case letter pressed with Command, or empty
  std::function<void()> action;  ///< runs on the main queue; null for none

  bool isSeparator() const { return title.empty(); }
};

using Menu = std::vector<MenuItem>;

/// An item in the status bar; destroying it removes it.
class StatusItem {
 public:
  virtual ~StatusItem() = default;

  /// Shows the system symbol `symbolName` as a template image, which follows the bar's appearance.
  virtual void setTemplateIcon(const std::string& symbolName,
                               const std::string& accessibilityDescription) = 0;

  /// Replaces the whole menu.
  virtual void setMenu(Menu menu) = 0;
};

/// The desktop's status bar. Main thread.
class StatusBar {
 public:
  virtual ~StatusBar() = default;

  /// A new item, or null when none can be made. It shows whenever a bar is there.
  virtual std::unique_ptr<StatusItem> makeStatusItem() = 0;

  /// Whether the desktop has a status bar at present.
  virtual const Published<bool>& isPresent() const = 0;
};

}  // namespace vantorel
