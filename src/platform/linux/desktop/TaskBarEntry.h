#pragma once

#include <QWindow>

namespace vantorel {

/// Whether a window of the program is listed in the task bar and the window switcher. Only X has a request
/// for that; elsewhere nothing happens. Main thread.
class TaskBarEntry {
 public:
  /// `listedWindow` outlives this object.
  explicit TaskBarEntry(const QWindow& listedWindow) : window(listedWindow) {}

  /// For a window that is on the screen: asks the window manager.
  void setListed(bool isListed) const;

  /// For a window that is about to be shown: the window manager reads it as it manages the window.
  void setListedWhenShown(bool isListed) const;

 private:
  const QWindow& window;
};

}  // namespace vantorel
