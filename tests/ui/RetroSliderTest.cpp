#include "RetroSlider.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QTest>
#include <QWheelEvent>

#include "AppTheme.h"
#include "Rendering.h"

namespace vantorel {
namespace {

TEST(RetroSlider, StandsOnTheGridFromItsLowestNumber) {
  RetroSlider slider(0.05, 0.5, 0.05);
  EXPECT_DOUBLE_EQ(slider.lowest(), 0.05);
  EXPECT_DOUBLE_EQ(slider.highest(), 0.5);
  slider.setDecimalValue(0.15);
  EXPECT_EQ(slider.value(), 2);
  EXPECT_EQ(static_cast<float>(slider.decimalValue()), 0.15F);
  slider.setDecimalValue(0.17);
  EXPECT_EQ(slider.value(), 2) << "the nearest point of the grid";
  slider.setDecimalValue(7);
  EXPECT_EQ(static_cast<float>(slider.decimalValue()), 0.5F);
  slider.setDecimalValue(-7);
  EXPECT_EQ(static_cast<float>(slider.decimalValue()), 0.05F);
}

TEST(RetroSlider, HasAGrooveAsWideAsItself) {
  RetroSlider slider(1, 10, 0.5);
  slider.resize(118, 22);
  slider.setDecimalValue(5);
  const QImage picture = rendered(slider);
  EXPECT_EQ(picture.pixelColor(0, 11), AppTheme::borderColor());
  EXPECT_EQ(picture.pixelColor(1, 11), AppTheme::secondaryAccent());
  EXPECT_EQ(picture.pixelColor(116, 11), AppTheme::background());
  EXPECT_EQ(picture.pixelColor(117, 11), AppTheme::borderColor());
}

TEST(RetroSlider, MovesByOneStepWithTheArrowKeysAndToItsEnds) {
  RetroSlider slider(1, 10, 0.5);
  slider.setDecimalValue(3);
  QTest::keyClick(&slider, Qt::Key_Right);
  EXPECT_DOUBLE_EQ(slider.decimalValue(), 3.5);
  QTest::keyClick(&slider, Qt::Key_Up);
  EXPECT_DOUBLE_EQ(slider.decimalValue(), 4);
  QTest::keyClick(&slider, Qt::Key_Left);
  QTest::keyClick(&slider, Qt::Key_Down);
  EXPECT_DOUBLE_EQ(slider.decimalValue(), 3);
  QTest::keyClick(&slider, Qt::Key_End);
  EXPECT_DOUBLE_EQ(slider.decimalValue(), 10);
  QTest::keyClick(&slider, Qt::Key_Right);
  EXPECT_DOUBLE_EQ(slider.decimalValue(), 10);
  QTest::keyClick(&slider, Qt::Key_Home);
  EXPECT_DOUBLE_EQ(slider.decimalValue(), 1);
}

TEST(RetroSlider, FollowsThePointerOnItsGrid) {
  RetroSlider slider(5, 30, 1);
  slider.resize(118, 22);  // a way of 100 points for 25 steps
  int changes = 0;
  QObject::connect(&slider, &QSlider::valueChanged, [&changes] { ++changes; });
  QTest::mousePress(&slider, Qt::LeftButton, {}, {9 + 41, 11});
  EXPECT_DOUBLE_EQ(slider.decimalValue(), 15) << "41 points are nearest to the tenth step";
  QTest::mouseMove(&slider, {9 + 80, 11});
  EXPECT_DOUBLE_EQ(slider.decimalValue(), 25);
  QTest::mouseMove(&slider, {400, 11});
  EXPECT_DOUBLE_EQ(slider.decimalValue(), 30);
  QTest::mouseRelease(&slider, Qt::LeftButton, {}, {400, 11});
  EXPECT_FALSE(slider.isSliderDown());
  EXPECT_EQ(changes, 3);
}

TEST(RetroSlider, LeavesTheWheelToThePageUntilItHasTheFocus) {
  RetroSlider slider(5, 30, 1);
  slider.setDecimalValue(15);
  QWheelEvent turn({5, 5}, slider.mapToGlobal(QPointF(5, 5)), {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                   Qt::NoScrollPhase, false);
  QApplication::sendEvent(&slider, &turn);
  EXPECT_DOUBLE_EQ(slider.decimalValue(), 15);
  EXPECT_FALSE(turn.isAccepted());
  slider.show();
  slider.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&slider, 30000));
  slider.setFocus();
  turn.setAccepted(false);
  QApplication::sendEvent(&slider, &turn);
  EXPECT_GT(slider.decimalValue(), 15);
}

class RetroSliderAtScale : public testing::TestWithParam<double> {
 protected:
  int pixels(double points) const { return static_cast<int>(points * GetParam() + 0.5); }
};

INSTANTIATE_TEST_SUITE_P(RetroSlider, RetroSliderAtScale, allScales(), scaleName);

TEST_P(RetroSliderAtScale, DrawsASharpHandleWhereTheNumberIs) {
  RetroSlider slider(0, 10, 1);
  slider.resize(118, 22);
  for (const int value : {0, 3, 10}) {
    slider.setDecimalValue(value);
    EXPECT_DOUBLE_EQ(slider.handleRect().center().x(), 9 + value * 10);
    const QImage image = rendered(slider, GetParam());
    const int top = pixels(slider.handleRect().top());
    const QPoint upperLine(pixels(slider.handleRect().center().x()), top);
    EXPECT_EQ(image.pixelColor(upperLine), QColor(Qt::black));
    EXPECT_EQ(runLength(image, upperLine, {0, 1}), pixels(2));
    EXPECT_EQ(countOf(image, Qt::black) + countOf(image, Qt::white) + countOf(image, AppTheme::background()) +
                  countOf(image, AppTheme::secondaryAccent()),
              image.width() * image.height())
        << "no soft edge";
  }
}

TEST(RetroSlider, ShowsAFrameWhileItHasTheFocus) {
  RetroSlider slider(0, 10, 1);
  slider.resize(118, 22);
  EXPECT_EQ(rendered(slider).pixelColor(0, 0), AppTheme::background());
  slider.show();
  slider.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&slider, 30000));
  slider.setFocus();
  EXPECT_EQ(runLength(rendered(slider), {0, 0}, {1, 0}), 118);
  EXPECT_EQ(rendered(slider).pixelColor(1, 1), AppTheme::secondaryAccent());
}

TEST(RetroSlider, TellsAssistiveTechnologyItsDecimalNumber) {
  RetroSlider slider(0.05, 0.5, 0.05);
  slider.setDecimalValue(0.15);
  slider.setAccessibleName(QStringLiteral("DEADZONE"));
  QAccessibleInterface* const shown = QAccessible::queryAccessibleInterface(&slider);
  ASSERT_NE(shown, nullptr);
  EXPECT_EQ(shown->role(), QAccessible::Slider);
  EXPECT_EQ(shown->text(QAccessible::Name), QStringLiteral("DEADZONE"));
  EXPECT_EQ(shown->text(QAccessible::Value), QStringLiteral("0.15"));
  QAccessibleValueInterface* const number = shown->valueInterface();
  ASSERT_NE(number, nullptr);
  EXPECT_NEAR(number->currentValue().toDouble(), 0.15, 1e-9);
  EXPECT_NEAR(number->minimumValue().toDouble(), 0.05, 1e-9);
  EXPECT_NEAR(number->maximumValue().toDouble(), 0.5, 1e-9);
  EXPECT_NEAR(number->minimumStepSize().toDouble(), 0.05, 1e-9);
  number->setCurrentValue(0.3);
  EXPECT_EQ(slider.value(), 5);
}

}  // namespace
}  // namespace vantorel
