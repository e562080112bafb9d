#pragma once

#include <QTimer>
#include <functional>
#include <vector>

#include "Published.h"
#include "Subscription.h"

namespace vantorel {

/// Keeps a view true to published values. However many of them are assigned meanwhile, the view is refreshed
/// once, as soon as the event loop has nothing more urgent to do. Main thread.
class ViewUpdates {
 public:
  ViewUpdates();

  /// Runs `refresh` now, and again after an assignment to one of `values`, until this object ends. `refresh`
  /// sets everything that it shows; the setters of the widgets see to it that only what differs is redrawn.
  template <class... Values>
  void follow(std::function<void()> refresh, const Published<Values>&... values) {
    refreshView = std::move(refresh);
    (subscriptions.push_back(values.observe([this] { refreshSoon.start(); })), ...);
    refreshView();
  }

 private:
  std::function<void()> refreshView;
  QTimer refreshSoon;
  std::vector<Subscription> subscriptions;
};

}  // namespace vantorel
