#include "StatusNotifierHost.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusVariant>
#include <QTest>
#include <algorithm>
#include <stdexcept>

#include "WaitUntil.h"

namespace vantorel::test {
namespace {

const QString registryName = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString registryPath = QStringLiteral("/StatusNotifierWatcher");
const QString itemInterface = QStringLiteral("org.kde.StatusNotifierItem");
const QString menuInterface = QStringLiteral("com.canonical.dbusmenu");
const QString propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");
const QString connectionName = QStringLiteral("status notifier host");

constexpr int patience = static_cast<int>(generousDeadline.count());

/// Qt's clients only see properties that are described here.
const char* const description = R"(<interface name="org.kde.StatusNotifierWatcher">
  <method name="RegisterStatusNotifierItem"><arg type="s" direction="in"/></method>
  <method name="RegisterStatusNotifierHost"><arg type="s" direction="in"/></method>
  <property name="RegisteredStatusNotifierItems" type="as" access="read"/>
  <property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
  <property name="ProtocolVersion" type="i" access="read"/>
  <signal name="StatusNotifierItemRegistered"><arg type="s"/></signal>
  <signal name="StatusNotifierItemUnregistered"><arg type="s"/></signal>
  <signal name="StatusNotifierHostRegistered"/>
  <signal name="StatusNotifierHostUnregistered"/>
</interface>)";

/// The labels of the menu mark a mnemonic by an underscore.
std::string withoutMnemonic(QString label) { return label.remove(QLatin1Char('_')).toStdString(); }

std::vector<std::string> shortcutFrom(const QVariant& value) {
  std::vector<std::string> keys;
  if (!value.isValid()) return keys;
  const auto argument = value.value<QDBusArgument>();
  argument.beginArray();
  while (!argument.atEnd()) {
    QStringList combination;
    argument >> combination;
    for (const QString& key : combination) keys.push_back(key.toStdString());
  }
  argument.endArray();
  return keys;
}

StatusNotifierHost::Entry entryFrom(int identifier, const QVariantMap& properties) {
  return {.identifier = identifier,
          .title = withoutMnemonic(properties.value(QStringLiteral("label")).toString()),
          .isSeparator = properties.value(QStringLiteral("type")) == QLatin1String("separator"),
          .isEnabled = properties.value(QStringLiteral("enabled"), true).toBool(),
          .shortcut = shortcutFrom(properties.value(QStringLiteral("shortcut")))};
}

/// The entries right below the root of a layout, which is (identifier, properties, entries) at every level.
std::vector<StatusNotifierHost::Entry> entriesFrom(const QDBusArgument& root) {
  std::vector<StatusNotifierHost::Entry> entries;
  int identifier = 0;
  QVariantMap properties;
  QVariantList children;
  root.beginStructure();
  root >> identifier >> properties >> children;
  root.endStructure();
  for (const QVariant& child : children) {
    const auto node = child.value<QDBusArgument>();
    QVariantList grandchildren;
    node.beginStructure();
    node >> identifier >> properties >> grandchildren;
    node.endStructure();
    entries.push_back(entryFrom(identifier, properties));
  }
  return entries;
}

}  // namespace

StatusNotifierHost::StatusNotifierHost(const std::string& address, Hosting initialHosting)
    : hosting(initialHosting),
      bus(QDBusConnection::connectToBus(QString::fromStdString(address), connectionName)) {
  owners.setConnection(bus);
  owners.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
  connect(&owners, &QDBusServiceWatcher::serviceUnregistered, this,
          [this](const QString& service) { forget(service); });
  if (!bus.registerVirtualObject(registryPath, this) || !bus.registerService(registryName)) {
    throw std::runtime_error("no registry of status items: " + bus.lastError().message().toStdString());
  }
}

StatusNotifierHost::~StatusNotifierHost() {
  bus.unregisterService(registryName);
  bus.unregisterObject(registryPath);
  QDBusConnection::disconnectFromBus(connectionName);
}

void StatusNotifierHost::setHosting(Hosting newHosting) {
  hosting = newHosting;
  emitSignal(hosting == Hosting::yes ? QStringLiteral("StatusNotifierHostRegistered")
                                     : QStringLiteral("StatusNotifierHostUnregistered"));
}

QVariant StatusNotifierHost::property(const std::string& name) {
  const QDBusMessage reply = call(items.at(0).path, propertiesInterface, QStringLiteral("Get"),
                                  {itemInterface, QString::fromStdString(name)});
  return reply.arguments().value(0).value<QDBusVariant>().variant();
}

QImage StatusNotifierHost::icon(int size) {
  QImage found;
  const auto pixmaps = property("IconPixmap").value<QDBusArgument>();
  pixmaps.beginArray();
  while (!pixmaps.atEnd()) {
    int width = 0;
    int height = 0;
    QByteArray data;
    pixmaps.beginStructure();
    pixmaps >> width >> height >> data;
    pixmaps.endStructure();
    if (width != size) continue;
    found = QImage(width, height, QImage::Format_ARGB32);
    const auto* bytes = reinterpret_cast<const uchar*>(data.constData());
    for (int i = 0; i < width * height; ++i, bytes += 4) {
      found.setPixelColor(i % width, i / width, QColor(bytes[1], bytes[2], bytes[3], bytes[0]));
    }
  }
  pixmaps.endArray();
  return found;
}

std::string StatusNotifierHost::toolTip() {
  const auto argument = property("ToolTip").value<QDBusArgument>();
  QString iconName;
  QString title;
  argument.beginStructure();
  argument >> iconName;
  argument.beginArray();
  argument.endArray();
  argument >> title;
  argument.endStructure();
  return title.toStdString();
}

std::vector<StatusNotifierHost::Entry> StatusNotifierHost::menu() {
  callMenu(QStringLiteral("AboutToShow"), {0});
  const QDBusMessage reply = callMenu(QStringLiteral("GetLayout"), {0, -1, QStringList()});
  return entriesFrom(reply.arguments().value(1).value<QDBusArgument>());
}

std::vector<std::string> StatusNotifierHost::titles() {
  std::vector<std::string> result;
  for (const Entry& entry : menu()) result.push_back(entry.isSeparator ? "-" : entry.title);
  return result;
}

void StatusNotifierHost::choose(const std::string& title) {
  const std::vector<Entry> entries = menu();
  const auto entry =
      std::find_if(entries.begin(), entries.end(), [&](const Entry& each) { return each.title == title; });
  if (entry == entries.end()) throw std::runtime_error("no entry " + title);
  callMenu(QStringLiteral("Event"),
           {entry->identifier, QStringLiteral("clicked"), QVariant::fromValue(QDBusVariant(QString())), 0U});
}

void StatusNotifierHost::activate() {
  call(items.at(0).path, itemInterface, QStringLiteral("Activate"), {0, 0});
}

QString StatusNotifierHost::introspect(const QString& /*path*/) const { return QLatin1String(description); }

bool StatusNotifierHost::handleMessage(const QDBusMessage& message, const QDBusConnection& /*connection*/) {
  const QVariantList arguments = message.arguments();
  if (message.interface() == propertiesInterface && message.member() == QLatin1String("Get")) {
    const QVariant value = properties().value(arguments.value(1).toString());
    return bus.send(message.createReply(QVariant::fromValue(QDBusVariant(value))));
  }
  if (message.interface() == propertiesInterface && message.member() == QLatin1String("GetAll")) {
    return bus.send(message.createReply(properties()));
  }
  if (message.member() == QLatin1String("RegisterStatusNotifierItem")) {
    registerItem(arguments.value(0).toString(), message.service());
    return bus.send(message.createReply());
  }
  return false;
}

void StatusNotifierHost::registerItem(const QString& name, const QString& sender) {
  const bool isPath = name.startsWith(QLatin1Char('/'));
  const Item item{isPath ? sender : name, isPath ? name : QStringLiteral("/StatusNotifierItem")};
  const auto isSame = [&](const Item& other) {
    return other.service == item.service && other.path == item.path;
  };
  if (std::any_of(items.begin(), items.end(), isSame)) return;
  items.push_back(item);
  owners.addWatchedService(item.service);
  emitSignal(QStringLiteral("StatusNotifierItemRegistered"), {item.service + item.path});
}

void StatusNotifierHost::forget(const QString& service) {
  std::erase_if(items, [&](const Item& item) { return item.service == service; });
  emitSignal(QStringLiteral("StatusNotifierItemUnregistered"), {service});
}

void StatusNotifierHost::emitSignal(const QString& name, const QVariantList& arguments) {
  QDBusMessage signal = QDBusMessage::createSignal(registryPath, registryName, name);
  signal.setArguments(arguments);
  bus.send(signal);
}

QVariantMap StatusNotifierHost::properties() const {
  QStringList registered;
  for (const Item& item : items) registered.append(item.service + item.path);
  return {{QStringLiteral("RegisteredStatusNotifierItems"), registered},
          {QStringLiteral("IsStatusNotifierHostRegistered"), hosting == Hosting::yes},
          {QStringLiteral("ProtocolVersion"), 0}};
}

/// The event loop turns meanwhile: the item may itself be waiting for an answer from this process.
QDBusMessage StatusNotifierHost::call(const QString& path, const QString& interface, const QString& method,
                                      const QVariantList& arguments) {
  QDBusMessage message = QDBusMessage::createMethodCall(items.at(0).service, path, interface, method);
  message.setArguments(arguments);
  const QDBusPendingCall pending = bus.asyncCall(message, patience);
  const bool isFinished = QTest::qWaitFor([&] { return pending.isFinished(); }, patience);
  if (!isFinished || pending.isError()) {
    throw std::runtime_error(method.toStdString() + ": " + pending.error().message().toStdString());
  }
  return pending.reply();
}

QDBusMessage StatusNotifierHost::callMenu(const QString& method, const QVariantList& arguments) {
  const auto path = property("Menu").value<QDBusObjectPath>().path();
  return call(path, menuInterface, method, arguments);
}

}  // namespace vantorel::test
