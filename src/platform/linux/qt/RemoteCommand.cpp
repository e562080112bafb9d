#include "RemoteCommand.h"

#include <QDBusError>
#include <QDBusMessage>

#include "SessionBus.h"

namespace vantorel {
namespace {

QString methodOf(RemoteCommand command) {
  switch (command) {
    case RemoteCommand::toggle:
      return QStringLiteral("Toggle");
    case RemoteCommand::show:
      return QStringLiteral("Show");
    case RemoteCommand::quit:
      return QStringLiteral("Quit");
  }
  return {};
}

RemoteAnswer toAnswer(const QDBusMessage& reply) {
  if (reply.type() == QDBusMessage::ReplyMessage) return {RemoteOutcome::done, {}};
  const QDBusError error(reply);
  switch (error.type()) {
    case QDBusError::ServiceUnknown:
      return {RemoteOutcome::noRunningProgram, {}};
    case QDBusError::Disconnected:
      return {RemoteOutcome::noSessionBus, {}};
    case QDBusError::NoReply:
    case QDBusError::Timeout:
      return {RemoteOutcome::refused, "The running program does not answer."};
    default:
      return {RemoteOutcome::refused, error.message().toStdString()};
  }
}

}  // namespace

RemoteAnswer send(RemoteCommand command, std::chrono::milliseconds patience) {
  const QDBusConnection bus = connectToSessionBus();
  if (!bus.isConnected()) return {RemoteOutcome::noSessionBus, {}};
  const QDBusMessage call =
      QDBusMessage::createMethodCall(remoteService, remotePath, remoteInterface, methodOf(command));
  const QDBusMessage reply = bus.call(call, QDBus::Block, static_cast<int>(patience.count()));
  disconnectFrom(bus);
  return toAnswer(reply);
}

}  // namespace vantorel
