#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>
#include <cstdint>
#include <optional>

#include "Published.h"

namespace vantorel {

/// Watches the session bus for a host of status-notifier items (a panel that shows them). It asks and listens
/// without ever waiting, from the first idle turn of the event loop on. Main thread.
class NotifierHosts : public QObject {
  Q_OBJECT

 public:
  NotifierHosts();
  NotifierHosts(const NotifierHosts&) = delete;
  NotifierHosts& operator=(const NotifierHosts&) = delete;

  /// Whether a host is there; empty while that is being asked.
  const Published<std::optional<bool>>& isThere() const { return there; }

 private:
  void connectToBus();
  Q_SLOT void ask();
  void askAgain();
  void take(std::optional<bool> answer);

  Published<std::optional<bool>> there{std::nullopt};
  QDBusConnection bus;
  QDBusServiceWatcher names;
  std::uint64_t question = 0;  ///< counts the questions: only the latest one's answer is taken
};

}  // namespace vantorel
