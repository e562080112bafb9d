#include "NotifierHosts.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QTimer>

#include "SessionBus.h"

namespace vantorel {
namespace {

const QString watcherService = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString watcherPath = QStringLiteral("/StatusNotifierWatcher");
const QString watcherInterface = QStringLiteral("org.kde.StatusNotifierWatcher");

constexpr int patience = 5000;  // ms for an answer

}  // namespace

/// The making of the window should not wait for the bus.
NotifierHosts::NotifierHosts() : bus(QString()) { QTimer::singleShot(0, this, &NotifierHosts::connectToBus); }

void NotifierHosts::connectToBus() {
  bus = sharedSessionBus();
  if (!bus.isConnected()) {
    there = false;
    return;
  }
  connect(&names, &QDBusServiceWatcher::serviceOwnerChanged, this, &NotifierHosts::askAgain);
  names.setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
  names.setConnection(bus);
  names.addWatchedService(watcherService);
  // No service is named here: Qt would wait for the bus to say who owns it.
  for (const char* signal : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"}) {
    bus.connect(QString(), watcherPath, watcherInterface, QLatin1String(signal), this, SLOT(ask()));
  }
  ask();
}

void NotifierHosts::ask() {
  QDBusMessage call = QDBusMessage::createMethodCall(
      watcherService, watcherPath, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
  call << watcherInterface << QStringLiteral("IsStatusNotifierHostRegistered");
  call.setAutoStartService(false);
  auto* reply = new QDBusPendingCallWatcher(bus.asyncCall(call, patience), this);
  connect(reply, &QDBusPendingCallWatcher::finished, this, [this, reply, asked = ++question] {
    reply->deleteLater();
    if (asked != question) return;
    const QDBusPendingReply<QDBusVariant> answer = *reply;
    take(!answer.isError() && answer.value().variant().toBool());
  });
}

/// The service has a new owner or none: what the former one said no longer holds.
void NotifierHosts::askAgain() {
  take(std::nullopt);
  ask();
}

void NotifierHosts::take(std::optional<bool> answer) {
  if (answer != there.get()) there = answer;
}

}  // namespace vantorel
