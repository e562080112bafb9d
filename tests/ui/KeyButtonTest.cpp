#include "KeyButton.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>
#include <cmath>
#include <utility>

#include "AppTheme.h"
#include "Rendering.h"

namespace vantorel {
namespace {

QImage picture(bool isCurrent, double scale = 1) {
  KeyButton button(KeyboardKey::escape, isCurrent);
  button.showName(AppLanguage::english);
  button.resize(148, KeyButton::keyHeight);
  return rendered(button, scale);
}

TEST(KeyButton, IsBlueWithWhiteTextIfItIsThePresentKey) {
  const QImage image = picture(true);
  EXPECT_EQ(image.pixelColor(10, 16), AppTheme::secondaryAccent());
  EXPECT_GT(countOf(image, Qt::white), 0);
  EXPECT_EQ(countOf(image, AppTheme::text()), 0);
}

TEST(KeyButton, IsWhiteWithDarkTextOtherwise) {
  const QImage image = picture(false);
  EXPECT_EQ(image.pixelColor(10, 16), QColor(Qt::white));
  EXPECT_GT(countOf(image, AppTheme::text()), 0);
  EXPECT_EQ(countOf(image, AppTheme::secondaryAccent()), 0);
}

class KeyButtonAtScale : public testing::TestWithParam<double> {};

INSTANTIATE_TEST_SUITE_P(KeyButton, KeyButtonAtScale, allScales(), scaleName);

TEST_P(KeyButtonAtScale, HasABorderOfTwoPoints) {
  const QImage image = picture(false, GetParam());
  const int border = static_cast<int>(std::lround(2 * GetParam()));
  const QPoint right(image.width() - 1, image.height() / 2);
  EXPECT_EQ(runLength(image, {0, image.height() / 2}, {1, 0}), border);
  EXPECT_EQ(runLength(image, right, {-1, 0}), border);
  EXPECT_EQ(runLength(image, {10, 0}, {0, 1}), border);
  EXPECT_EQ(runLength(image, {10, image.height() - 1}, {0, -1}), border);
  EXPECT_EQ(image.pixelColor(0, 0), AppTheme::borderColor());
}

TEST_P(KeyButtonAtScale, KeepsItsBorderWhileItHasTheFocus) {
  KeyButton button(KeyboardKey::escape, false);
  button.resize(148, KeyButton::keyHeight);
  button.show();
  button.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&button, 30000));
  button.setFocus();
  const QImage image = rendered(button, GetParam());
  const int border = static_cast<int>(std::lround(2 * GetParam()));
  for (const auto& [from, step] :
       {std::pair(QPoint(0, 20), QPoint(1, 0)), std::pair(QPoint(image.width() - 1, 20), QPoint(-1, 0)),
        std::pair(QPoint(20, 0), QPoint(0, 1)), std::pair(QPoint(20, image.height() - 1), QPoint(0, -1))}) {
    EXPECT_EQ(runLength(image, from, step), border);
    EXPECT_EQ(image.pixelColor(from + border * step), AppTheme::secondaryAccent());
    EXPECT_EQ(runLength(image, from + border * step, step), border) << "the frame";
  }
}

TEST(KeyButton, CentresItsName) {
  const QImage image = picture(false);
  int left = image.width();
  int right = 0;
  for (int x = 3; x < image.width() - 3; ++x) {
    const bool isEmpty = runLength(image, {x, 2}, {0, 1}) == image.height() - 4;
    if (isEmpty) continue;
    left = std::min(left, x);
    right = std::max(right, x);
  }
  EXPECT_NEAR(left, image.width() - 1 - right, 2);
}

TEST(KeyButton, StaysAsItIsWhenItIsPressed) {
  KeyButton current(KeyboardKey::a, true);
  KeyButton other(KeyboardKey::b, false);
  current.resize(80, 32);
  other.resize(80, 32);
  QTest::mouseClick(&current, Qt::LeftButton);
  QTest::mouseClick(&other, Qt::LeftButton);
  EXPECT_TRUE(current.isChecked());
  EXPECT_FALSE(other.isChecked());
}

TEST(KeyButton, IsPressedByMouseAndKeyboard) {
  KeyButton button(KeyboardKey::a, false);
  button.resize(80, 32);
  const QSignalSpy clicks(&button, &KeyButton::clicked);
  QTest::mouseClick(&button, Qt::LeftButton);
  EXPECT_EQ(clicks.count(), 1);
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) QTest::keyClick(&button, key);
  EXPECT_EQ(clicks.count(), 4);
  QTest::mouseClick(&button, Qt::RightButton);
  EXPECT_EQ(clicks.count(), 4);
}

TEST(KeyButton, IgnoresTheRepeatedPressOfAHeldReturnKey) {
  KeyButton button(KeyboardKey::a, false);
  const QSignalSpy clicks(&button, &KeyButton::clicked);
  QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"), true);
  QApplication::sendEvent(&button, &repeated);
  EXPECT_EQ(clicks.count(), 0);
}

TEST(KeyButton, IsReadAsAButtonThatIsCheckedIfItIsThePresentKey) {
  KeyButton button(KeyboardKey::space, true);
  button.showName(AppLanguage::chinese);
  QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&button);
  EXPECT_EQ(interface->role(), QAccessible::Button);
  EXPECT_EQ(interface->text(QAccessible::Name), QStringLiteral("空格"));
  EXPECT_TRUE(interface->state().checked);
  KeyButton other(KeyboardKey::tab, false);
  EXPECT_FALSE(QAccessible::queryAccessibleInterface(&other)->state().checked);
}

TEST(KeyButton, IsPressedByAssistiveTechnology) {
  KeyButton button(KeyboardKey::space, false);
  const QSignalSpy clicks(&button, &KeyButton::clicked);
  QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&button);
  interface->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(clicks.count(), 1);
}

}  // namespace
}  // namespace vantorel
