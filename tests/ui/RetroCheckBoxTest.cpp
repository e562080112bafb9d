#include "RetroCheckBox.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QTest>

#include "AppTheme.h"
#include "Rendering.h"
#include "WrappedText.h"

namespace vantorel {
namespace {

class RetroCheckBoxAtScale : public testing::TestWithParam<double> {
 protected:
  int pixels(double points) const { return static_cast<int>(points * GetParam() + 0.5); }
};

INSTANTIATE_TEST_SUITE_P(RetroCheckBox, RetroCheckBoxAtScale, allScales(), scaleName);

TEST_P(RetroCheckBoxAtScale, DrawsASquareOfSharpLines) {
  RetroCheckBox box;
  box.resize(60, 20);
  const QImage image = rendered(box, GetParam());
  const QRect square = box.boxRect();
  const QPoint left(pixels(square.left()), pixels(square.center().y()));
  EXPECT_EQ(runLength(image, {0, left.y()}, {1, 0}), left.x());
  EXPECT_EQ(image.pixelColor(left), QColor(Qt::black));
  EXPECT_EQ(runLength(image, left, {1, 0}), pixels(2));
  const int edge = pixels(square.left() + square.width()) - left.x();
  const int inside = edge - 2 * pixels(2);
  EXPECT_EQ(countOf(image, Qt::black), edge * edge - inside * inside);
  EXPECT_EQ(countOf(image, Qt::white), inside * inside);
}

TEST(RetroCheckBox, ShowsAMarkOnGreenWhileItIsOn) {
  RetroCheckBox box;
  box.resize(60, 20);
  const int outline = countOf(rendered(box, 2), Qt::black);
  box.setChecked(true);
  const QImage image = rendered(box, 2);
  EXPECT_GT(countOf(image, AppTheme::success()), 100);
  EXPECT_GT(countOf(image, Qt::black), outline + 20) << "the mark";
  EXPECT_EQ(countOf(image, Qt::white), 0);
}

TEST(RetroCheckBox, IsSwitchedByAClickAnywhereOnItAndByTheSpaceKey) {
  RetroCheckBox box(QStringLiteral("ACTIVE_MAPPING"));
  box.resize(200, 40);
  QTest::mouseClick(&box, Qt::LeftButton, {}, box.boxRect().center());
  EXPECT_TRUE(box.isChecked());
  QTest::mouseClick(&box, Qt::LeftButton, {}, {195, 35});
  EXPECT_FALSE(box.isChecked());
  QTest::keyClick(&box, Qt::Key_Space);
  EXPECT_TRUE(box.isChecked());
  box.setEnabled(false);
  QTest::mouseClick(&box, Qt::LeftButton, {}, box.boxRect().center());
  EXPECT_TRUE(box.isChecked());
}

TEST(RetroCheckBox, WrapsItsLabelBetweenTheWordsOfItsName) {
  RetroCheckBox box(QStringLiteral("JOYSTICK_CONTROL"));
  const int narrow = box.minimumSizeHint().width();
  EXPECT_LE(narrow, 85);
  EXPECT_LT(box.heightForWidth(300), box.heightForWidth(narrow));
  box.resize(narrow, box.heightForWidth(narrow));
  const QImage image = rendered(box);
  for (int y = 0; y < box.height(); ++y) {
    ASSERT_EQ(image.pixelColor(narrow - 1, y), AppTheme::background()) << "the label stays inside";
  }
  for (int x = 0; x < narrow; ++x) {
    ASSERT_EQ(image.pixelColor(x, box.height() - 1), AppTheme::background()) << "the label stays inside";
  }
}

TEST(RetroCheckBox, WritesInTheCaptionSizeAndTheHeaviestWeight) {
  const RetroCheckBox box;
  EXPECT_EQ(box.font().pixelSize(), 10);
  EXPECT_EQ(box.font().weight(), QFont::Black);
}

TEST(RetroCheckBox, ShowsAFrameWhileItHasTheFocus) {
  RetroCheckBox box(QStringLiteral("ON"));
  box.resize(80, 24);
  EXPECT_EQ(countOf(rendered(box), AppTheme::secondaryAccent()), 0);
  box.show();
  box.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&box, 30000));
  box.setFocus();
  EXPECT_EQ(countOf(rendered(box), AppTheme::secondaryAccent()), 80 * 24 - 76 * 20) << "two points wide";
}

TEST(RetroCheckBox, IsACheckBoxOfItsNameToAssistiveTechnology) {
  RetroCheckBox box(QStringLiteral("MENU_BAR_MODE"));
  box.setChecked(true);
  QAccessibleInterface* const shown = QAccessible::queryAccessibleInterface(&box);
  ASSERT_NE(shown, nullptr);
  EXPECT_EQ(shown->role(), QAccessible::CheckBox);
  EXPECT_EQ(shown->text(QAccessible::Name), QStringLiteral("MENU_BAR_MODE"));
  EXPECT_TRUE(shown->state().checked);
}

}  // namespace
}  // namespace vantorel
