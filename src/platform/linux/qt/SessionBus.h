#pragma once

#include <QDBusConnection>
#include <QString>

namespace vantorel {

/// The name, object and interface under which the running program is known on the session bus.
inline const QString remoteService = QStringLiteral("org.vantorel.Vantorel");
inline const QString remotePath = QStringLiteral("/org/vantorel/Vantorel");
inline const QString remoteInterface = QStringLiteral("org.vantorel.RemoteControl");

/// A new connection to the session's message bus; not connected when the session has none. Unlike
/// QDBusConnection::sessionBus() it never starts a bus where there is none. Any thread, also before there is
/// an application.
QDBusConnection connectToSessionBus();

/// The connection that Qt has itself, made at the first call; not connected, nor looked for, when the
/// environment tells of no bus. Any thread. It stays until the program ends.
QDBusConnection sharedSessionBus();

/// Ends a connection made by connectToSessionBus().
void disconnectFrom(const QDBusConnection& bus);

}  // namespace vantorel
