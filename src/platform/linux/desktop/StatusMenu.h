#pragma once

#include <QKeyEvent>
#include <QMenu>

#include "MainQueue.h"
#include "StatusBar.h"

namespace vantorel {

/// The menu of a status item as a Qt menu. Command is the Super key (Qt's Meta), as in the hot key. Main
/// thread.
class StatusMenu : public QMenu {
 public:
  explicit StatusMenu(MainQueue& mainQueue) : queue(mainQueue) {}
  StatusMenu(const StatusMenu&) = delete;
  StatusMenu& operator=(const StatusMenu&) = delete;
  /// Takes the entries away first: Qt would leave behind what it has made of them for the bus.
  ~StatusMenu() override { clear(); }

  /// Replaces all entries. Chosen actions are posted to the main queue.
  void setEntries(const Menu& entries);

 protected:
  /// Key equivalents work while the menu is open, also when no window of the program is active.
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void addEntry(const MenuItem& entry);

  MainQueue& queue;
};

}  // namespace vantorel
