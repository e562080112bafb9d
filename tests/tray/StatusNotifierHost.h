#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QDBusVirtualObject>
#include <QImage>
#include <QVariant>
#include <string>
#include <vector>

namespace vantorel::test {

/// A panel that shows status-notifier items, in the part that can be seen on the bus: the registry of items
/// with a host behind it, and the reading and clicking of an item's menu. Calls turn Qt's event loop while
/// they wait.
class StatusNotifierHost : public QDBusVirtualObject {
 public:
  /// One entry of a menu as the host would draw it.
  struct Entry {
    int identifier = 0;
    std::string title;
    bool isSeparator = false;
    bool isEnabled = true;
    std::vector<std::string> shortcut;
  };

  /// Whether the registry says that a host is there to show items.
  enum class Hosting { yes, no };

  /// Takes the registry's name on the bus at `address`; throws when it is taken.
  explicit StatusNotifierHost(const std::string& address, Hosting initialHosting = Hosting::yes);
  StatusNotifierHost(const StatusNotifierHost&) = delete;
  StatusNotifierHost& operator=(const StatusNotifierHost&) = delete;
  /// Leaves the bus.
  ~StatusNotifierHost() override;

  /// A host appears or goes away while the registry stays.
  void setHosting(Hosting newHosting);

  /// How many items are registered at present.
  std::size_t itemCount() const { return items.size(); }

  /// Of the first item. An item that does not answer makes them throw.
  QVariant property(const std::string& name);
  QImage icon(int size);
  std::string toolTip();
  std::vector<Entry> menu();

  /// The titles of the menu; separators are "-".
  std::vector<std::string> titles();

  /// Clicks the entry of the menu with this title; throws when there is none.
  void choose(const std::string& title);

  /// A plain click on the item itself.
  void activate();

 private:
  struct Item {
    QString service;
    QString path;
  };

  QString introspect(const QString& path) const override;
  bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;
  void registerItem(const QString& name, const QString& sender);
  void forget(const QString& service);
  void emitSignal(const QString& name, const QVariantList& arguments = {});
  QVariantMap properties() const;
  QDBusMessage call(const QString& path, const QString& interface, const QString& method,
                    const QVariantList& arguments);
  QDBusMessage callMenu(const QString& method, const QVariantList& arguments);

  Hosting hosting;
  QDBusConnection bus;
  QDBusServiceWatcher owners;
  std::vector<Item> items;
};

}  // namespace vantorel::test
