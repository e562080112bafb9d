#include "RemoteControl.h"

#include <QDBusContext>
#include <QDBusError>
#include <QDBusMessage>
#include <QMetaObject>
#include <QObject>
#include <utility>

#include "SessionBus.h"

namespace vantorel {
namespace {

/// The object that callers see; its slots are the methods.
class RemoteObject : public QObject, protected QDBusContext {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.vantorel.RemoteControl")
  Q_PROPERTY(bool HasWindow READ hasWindow CONSTANT)

 public:
  explicit RemoteObject(RemoteControl::Handlers commandHandlers) : handlers(std::move(commandHandlers)) {}

  bool hasWindow() const { return handlers.show != nullptr; }

  // The methods by their names on the bus.
  Q_SLOT void Toggle() { handlers.toggle(); }

  Q_SLOT void Show() {
    if (hasWindow()) {
      handlers.show();
    } else {
      sendErrorReply(QDBusError::NotSupported, QStringLiteral("The running program has no window."));
    }
  }

  Q_SLOT void Quit() {
    setDelayedReply(true);
    connection().send(message().createReply());
    waitForBus();
    QMetaObject::invokeMethod(this, handlers.quit, Qt::QueuedConnection);
  }

 private:
  /// Returns once everything sent so far has reached the bus, and so its receiver, even if the program ends.
  void waitForBus() const {
    constexpr int patience = 1000;  // milliseconds
    const QString busName = QStringLiteral("org.freedesktop.DBus");
    connection().call(QDBusMessage::createMethodCall(busName, QStringLiteral("/org/freedesktop/DBus"),
                                                     busName, QStringLiteral("GetId")),
                      QDBus::Block, patience);
  }

  const RemoteControl::Handlers handlers;
};

}  // namespace

RemoteControl::RemoteControl(QDBusConnection connection, Handlers handlers, QThread* home)
    : bus(std::move(connection)), object(std::make_unique<RemoteObject>(std::move(handlers))) {
  object->moveToThread(home);
  result = claim();
}

RemoteControl::~RemoteControl() { disconnectFrom(bus); }

RemoteControl::State RemoteControl::claim() {
  if (!bus.isConnected()) return State::noSessionBus;
  // The object comes first: who sees the name can call at once.
  bus.registerObject(remotePath, object.get(),
                     QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllProperties);
  return bus.registerService(remoteService) ? State::reachable : State::anotherIsRunning;
}

}  // namespace vantorel

#include "RemoteControl.moc"
