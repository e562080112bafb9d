#pragma once

#include <QObject>
#include <functional>
#include <utility>
#include <vector>

#include "Published.h"
#include "Subscription.h"

namespace vantorel {

/// Keeps a view true to published values. However many of them are assigned in one turn of the event loop,
/// the view is refreshed once, in the next turn. Main thread.
class ViewUpdates {
 public:
  /// Runs `refresh` now, and again after an assignment to one of `values`, until this object ends. `refresh`
  /// sets everything that it shows; the setters of the widgets see to it that only what differs is redrawn.
  template <class... Values>
  void follow(std::function<void()> refresh, const Published<Values>&... values) {
    refreshView = std::move(refresh);
    (subscriptions.push_back(values.observe([this] { refreshSoon(); })), ...);
    refreshView();
  }

 private:
  void refreshSoon();

  std::function<void()> refreshView;
  bool isPending = false;
  std::vector<Subscription> subscriptions;
  QObject receiver;  ///< a refresh that is still to come ends with it
};

}  // namespace vantorel
