#include "SessionBus.h"

#include <QDBusVariant>
#include <QFileInfo>
#include <QUuid>

namespace vantorel {
namespace {

/// Where the session's bus listens; empty if there is none.
QString sessionBusAddress() {
  QString address = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
  if (!address.isEmpty()) return address;
  const QString directory = qEnvironmentVariable("XDG_RUNTIME_DIR");
  const QString socket = directory + QStringLiteral("/bus");
  return !directory.isEmpty() && QFileInfo::exists(socket) ? QStringLiteral("unix:path=") + socket
                                                           : QString();
}

}  // namespace

QDBusConnection connectToSessionBus() {
  const QString name = QStringLiteral("vantorel-") + QUuid::createUuid().toString(QUuid::WithoutBraces);
  const QString address = sessionBusAddress();
  return address.isEmpty() ? QDBusConnection(name) : QDBusConnection::connectToBus(address, name);
}

QDBusConnection sharedSessionBus() {
  return sessionBusAddress().isEmpty() ? QDBusConnection(QString()) : QDBusConnection::sessionBus();
}

void disconnectFrom(const QDBusConnection& bus) { QDBusConnection::disconnectFromBus(bus.name()); }

}  // namespace vantorel
