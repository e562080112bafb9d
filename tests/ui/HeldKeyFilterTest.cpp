#include "HeldKeyFilter.h"

#include <gtest/gtest.h>

#include <QApplication>

#include "MappingRow.h"

namespace vantorel {
namespace {

/// A row of the mapping list and the keyboard of an X server.
class HeldKey : public testing::Test {
 protected:
  HeldKey() {
    qApp->installEventFilter(&filter);
    QObject::connect(&row, &MappingRow::clicked, [this] { ++clicks; });
  }

  void send(QEvent::Type type, int key, quint64 milliseconds) {
    QKeyEvent event(type, key, Qt::NoModifier);
    event.setTimestamp(milliseconds);
    QApplication::sendEvent(&row, &event);
  }

  HeldKeyFilter filter;
  MappingRow row{GamepadButton::buttonA};
  int clicks = 0;
};

TEST_F(HeldKey, PressesOnceHoweverLongItIsHeld) {
  for (const int key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
    clicks = 0;
    send(QEvent::KeyPress, key, 1000);
    for (const quint64 repeat : {1500U, 1530U, 1560U}) {
      send(QEvent::KeyRelease, key, repeat);
      send(QEvent::KeyPress, key, repeat);
    }
    send(QEvent::KeyRelease, key, 1575);
    EXPECT_EQ(clicks, 1) << key;
  }
}

TEST_F(HeldKey, PressesAgainWhenItIsPressedAgain) {
  for (const quint64 time : {1000U, 1100U}) {
    send(QEvent::KeyPress, Qt::Key_Return, time);
    send(QEvent::KeyRelease, Qt::Key_Return, time + 50);
  }
  EXPECT_EQ(clicks, 2);
}

TEST_F(HeldKey, LetsAnotherKeyPassAtTheSameInstant) {
  send(QEvent::KeyRelease, Qt::Key_Tab, 1000);
  send(QEvent::KeyPress, Qt::Key_Return, 1000);
  EXPECT_EQ(clicks, 1);
}

TEST_F(HeldKey, LetsKeysPassWhoseTimeIsUnknown) {
  for (int press = 0; press < 2; ++press) {
    send(QEvent::KeyPress, Qt::Key_Return, 0);
    send(QEvent::KeyRelease, Qt::Key_Return, 0);
  }
  EXPECT_EQ(clicks, 2);
}

TEST_F(HeldKey, RepeatsTheKeysThatMove) {
  send(QEvent::KeyRelease, Qt::Key_Down, 1000);
  QKeyEvent press(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
  press.setTimestamp(1000);
  EXPECT_FALSE(filter.eventFilter(&row, &press));
}

}  // namespace
}  // namespace vantorel
