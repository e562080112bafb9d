#include "RetroButton.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QMenu>
#include <QTest>

#include "AppTheme.h"
#include "Rendering.h"
#include "WrappedText.h"

namespace vantorel {
namespace {

/// A button of 100 by 40 points and its shadow.
class SizedButton : public RetroButton {
 public:
  SizedButton() : RetroButton(AppTheme::secondaryAccent(), QString()) { resize(102, 42); }
};

class RetroButtonAtScale : public testing::TestWithParam<double> {
 protected:
  int pixels(double points) const { return static_cast<int>(points * GetParam() + 0.5); }
};

INSTANTIATE_TEST_SUITE_P(RetroButton, RetroButtonAtScale, allScales(), scaleName);

TEST_P(RetroButtonAtScale, HasItsColourInAnOutlineOfTwoPoints) {
  SizedButton button;
  const QImage image = rendered(button, GetParam());
  const int line = pixels(2);
  EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::black));
  EXPECT_EQ(runLength(image, {0, 0}, {1, 0}), pixels(100)) << "square corners";
  EXPECT_EQ(runLength(image, {0, pixels(20)}, {1, 0}), line);
  EXPECT_EQ(runLength(image, {pixels(100) - 1, pixels(20)}, {-1, 0}), line);
  EXPECT_EQ(runLength(image, {pixels(50), 0}, {0, 1}), line);
  EXPECT_EQ(runLength(image, {pixels(50), pixels(40) - 1}, {0, -1}), line);
  EXPECT_EQ(countOf(image, button.color()), (pixels(100) - 2 * line) * (pixels(40) - 2 * line));
}

TEST_P(RetroButtonAtScale, CastsAHardShadowTwoPointsRightAndDown) {
  SizedButton button;
  const QImage image = rendered(button, GetParam());
  const QPoint beside(pixels(100), pixels(20));
  EXPECT_TRUE(isNearly(image.pixelColor(beside), blended(Qt::black, 0.1, AppTheme::background())));
  EXPECT_EQ(runLength(image, beside, {1, 0}), pixels(102) - pixels(100));
  EXPECT_EQ(runLength(image, beside, {0, -1}), pixels(20) - pixels(2) + 1);
  EXPECT_EQ(image.pixelColor(pixels(100), 0), AppTheme::background());
  EXPECT_EQ(image.pixelColor(0, pixels(40)), AppTheme::background());
}

TEST(RetroButton, PadsItsLabelBySixteenAndEightPoints) {
  RetroButton button(AppTheme::accent(), QStringLiteral("FIX"));
  const QSizeF label = WrappedText(button.text(), Lettering(button.font()), 1000).size();
  EXPECT_EQ(button.sizeHint(), QSize(static_cast<int>(std::ceil(label.width())) + 2 * 16 + 2,
                                     static_cast<int>(std::ceil(label.height())) + 2 * 8 + 2));
  button.resize(button.sizeHint());
  const QImage image = rendered(button);
  for (int y = 2; y < button.height() - 4; ++y) {
    for (int x = 2; x < button.width() - 4; ++x) {
      const bool padding = x < 16 || x >= button.width() - 2 - 16 || y < 8 || y >= button.height() - 2 - 8;
      if (padding) {
        ASSERT_EQ(image.pixelColor(x, y), AppTheme::accent()) << x << ", " << y;
      }
    }
  }
}

TEST(RetroButton, WritesInWhite) {
  RetroButton button(AppTheme::accent(), QStringLiteral("FIX"));
  button.resize(button.sizeHint());
  EXPECT_GT(countOf(rendered(button, 2), Qt::white), 20);
}

TEST(RetroButton, BreaksItsLabelWhereItIsNarrow) {
  RetroButton button(AppTheme::accent(), QStringLiteral("DOWNLOAD_DRIVER"));
  const int narrow = button.minimumSizeHint().width();
  EXPECT_LE(narrow, 92) << "seven panels stand in a row of 1000 points";
  EXPECT_GT(button.heightForWidth(narrow), button.heightForWidth(300));
  button.resize(narrow, button.heightForWidth(narrow));
  const QImage image = rendered(button);
  for (int y = 2; y < button.height() - 4; ++y) {
    ASSERT_EQ(image.pixelColor(2, y), AppTheme::accent()) << "the label stays inside";
    ASSERT_EQ(image.pixelColor(narrow - 5, y), AppTheme::accent()) << "the label stays inside";
  }
}

TEST(RetroButton, LiesOnItsShadowWhileItIsHeldDown) {
  SizedButton button;
  button.setDown(true);
  const QImage image = rendered(button);
  EXPECT_EQ(image.pixelColor(0, 20), AppTheme::background());
  EXPECT_EQ(image.pixelColor(1, 41), AppTheme::background());
  EXPECT_EQ(image.pixelColor(2, 2), QColor(Qt::black));
  EXPECT_EQ(image.pixelColor(101, 41), QColor(Qt::black));
}

TEST(RetroButton, DarkensUnderThePointer) {
  SizedButton button;
  button.setAttribute(Qt::WA_UnderMouse);
  const QColor shown = rendered(button).pixelColor(50, 20);
  EXPECT_LT(shown.lightness(), button.color().lightness());
}

TEST(RetroButton, FadesWhileItIsDisabled) {
  SizedButton button;
  button.setEnabled(false);
  const QImage image = rendered(button);
  EXPECT_EQ(image.pixelColor(0, 0), AppTheme::secondaryText());
  EXPECT_LT(image.pixelColor(50, 20).saturation(), button.color().saturation());
}

TEST(RetroButton, ShowsAFrameInsideItsOutlineWhileItHasTheFocus) {
  SizedButton button;
  button.move(300, 300);  // away from the pointer
  button.show();
  button.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&button, 30000));
  button.setFocus();
  const QImage image = rendered(button);
  EXPECT_EQ(runLength(image, {2, 20}, {1, 0}), 2);
  EXPECT_EQ(image.pixelColor(2, 20), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(4, 20), QColor(Qt::black));
  EXPECT_EQ(image.pixelColor(5, 20), button.color());
  button.clearFocus();
  EXPECT_EQ(rendered(button).pixelColor(2, 20), button.color());
}

TEST(RetroButton, IsPressedByMouseSpaceAndReturn) {
  SizedButton button;
  int presses = 0;
  QObject::connect(&button, &QPushButton::clicked, [&presses] { ++presses; });
  QTest::mouseClick(&button, Qt::LeftButton);
  EXPECT_EQ(presses, 1);
  QTest::keyClick(&button, Qt::Key_Space);
  EXPECT_EQ(presses, 2);
  QTest::keyClick(&button, Qt::Key_Return);
  EXPECT_EQ(presses, 3);
  QTest::mouseClick(&button, Qt::RightButton);
  EXPECT_EQ(presses, 3);
}

TEST(RetroButton, IsAButtonOfItsNameToAssistiveTechnology) {
  RetroButton button(AppTheme::accent(), QStringLiteral("START_PROBE"));
  QAccessibleInterface* const shown = QAccessible::queryAccessibleInterface(&button);
  ASSERT_NE(shown, nullptr);
  EXPECT_EQ(shown->role(), QAccessible::Button);
  EXPECT_EQ(shown->text(QAccessible::Name), QStringLiteral("START_PROBE"));
}

TEST(RetroButton, MakesRoomForASymbol) {
  RetroButton button(AppTheme::text(), QStringLiteral("English"));
  const int width = button.sizeHint().width();
  button.setSymbol(Icon::globe);
  EXPECT_EQ(button.sizeHint().width(), width + 14 + 6);
  button.resize(button.sizeHint());
  const QImage image = rendered(button, 2);
  int white = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 32; x < 60; ++x) white += image.pixelColor(x, y).lightness() > 128 ? 1 : 0;
  }
  EXPECT_GT(white, 100) << "the globe stands before the text";
}

}  // namespace
}  // namespace vantorel
