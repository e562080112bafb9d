#include "JoystickPanel.h"

#include <gtest/gtest.h>

#include <QTest>

#include "CardFrame.h"
#include "OpenWindow.h"
#include "Rendering.h"
#include "RetroSlider.h"

namespace vantorel {
namespace {

const QString glyph = QString::fromUtf8("🕹️");

class JoystickPanelTest : public testing::Test {
 protected:
  JoystickPanelTest() { host.activate(); }

  void switchOn() { host.click("JOYSTICK_CONTROL"); }
  QStringList texts() { return OpenWindow::labels(host.panel(3)); }
  RetroSlider& slider(const QString& name) { return *host.control<RetroSlider>(name); }

  void pressInSlider(const QString& name, Qt::Key code) {
    slider(name).setFocus();
    host.key(code);
  }

  const JoystickMouseController& joystick() const {
    return host.state.controllerManager.joystickMouseController;
  }

  OpenWindow host;
};

TEST_F(JoystickPanelTest, HidesItsSectionAtFirst) {
  EXPECT_FALSE(host.control<QCheckBox>("JOYSTICK_CONTROL")->isChecked());
  EXPECT_EQ(texts(), QStringList());
  EXPECT_FALSE(host.shows("MOUSE"));
}

TEST_F(JoystickPanelTest, StartsTheThumbstickMouseAndShowsItsSection) {
  switchOn();
  EXPECT_EQ(host.timesRecorded("✅ 启动摇杆触摸屏滚动控制"), 1);
  EXPECT_EQ(host.timesRecorded("   灵敏度: 3.0, 死区: 0.15"), 1);
  EXPECT_EQ(texts(),
            QStringList({glyph, "LEFT_STICK: Move cursor + Click (L3)", glyph, "RIGHT_STICK: Scroll page",
                         "MOUSE: 15.0", "SCROLL: 3.0", "DEADZONE: 0.2"}));
}

TEST_F(JoystickPanelTest, StopsTheThumbstickMouseAndHidesItsSection) {
  switchOn();
  const int stopped = host.timesRecorded("🛑 停止摇杆触摸屏滚动控制");
  switchOn();
  EXPECT_EQ(host.timesRecorded("🛑 停止摇杆触摸屏滚动控制"), stopped + 1);
  EXPECT_FALSE(joystick().isEnabled);
  EXPECT_EQ(texts(), QStringList());
}

TEST_F(JoystickPanelTest, MovesTheScrollSliderByOneStep) {
  switchOn();
  pressInSlider("SCROLL", Qt::Key_Right);
  EXPECT_TRUE(texts().contains("SCROLL: 3.5"));
  EXPECT_EQ(joystick().sensitivity, 3.5F);
}

TEST_F(JoystickPanelTest, ShowsTheDeadzoneWithOneDecimalAndHoldsItExactly) {
  switchOn();
  pressInSlider("DEADZONE", Qt::Key_Home);
  EXPECT_TRUE(texts().contains("DEADZONE: 0.1"));
  EXPECT_EQ(joystick().deadzone, 0.05F);
  pressInSlider("DEADZONE", Qt::Key_End);
  EXPECT_TRUE(texts().contains("DEADZONE: 0.5"));
  EXPECT_EQ(joystick().deadzone, 0.5F);
}

TEST_F(JoystickPanelTest, KeepsEverySliderInItsRangeAndOnItsGrid) {
  switchOn();
  struct Expectation {
    QString name;
    double lowest, highest, step;
  };
  for (const Expectation& expected : {Expectation{"MOUSE", 5, 30, 1}, Expectation{"SCROLL", 1, 10, 0.5},
                                      Expectation{"DEADZONE", 0.05, 0.5, 0.05}}) {
    EXPECT_DOUBLE_EQ(slider(expected.name).lowest(), expected.lowest);
    EXPECT_DOUBLE_EQ(slider(expected.name).highest(), expected.highest);
    EXPECT_DOUBLE_EQ(slider(expected.name).stepSize(), expected.step);
  }
  pressInSlider("MOUSE", Qt::Key_Home);
  EXPECT_EQ(joystick().mouseSensitivity, 5.0F);
  pressInSlider("MOUSE", Qt::Key_Left);
  EXPECT_EQ(joystick().mouseSensitivity, 5.0F);
}

TEST_F(JoystickPanelTest, MovesASliderByMouse) {
  switchOn();
  RetroSlider& mouse = slider("MOUSE");
  QTest::mouseClick(&mouse, Qt::LeftButton, {}, {mouse.width() - 2, mouse.height() / 2});
  host.settle();
  EXPECT_EQ(joystick().mouseSensitivity, 30.0F);
  EXPECT_TRUE(texts().contains("MOUSE: 30.0"));
}

TEST_F(JoystickPanelTest, KeepsItsSettingsWhileItsSectionIsHidden) {
  switchOn();
  pressInSlider("SCROLL", Qt::Key_Right);
  switchOn();
  switchOn();
  EXPECT_TRUE(texts().contains("SCROLL: 3.5"));
  EXPECT_DOUBLE_EQ(slider("SCROLL").decimalValue(), 3.5);
}

TEST_F(JoystickPanelTest, ChangesEveryTextWithTheLanguage) {
  switchOn();
  host.state.chooseLanguage(AppLanguage::chinese);
  host.settle();
  EXPECT_EQ(texts(), QStringList({glyph, "左摇杆: 移动光标 + 按下点击 (L3)", glyph, "右摇杆: 滚动页面",
                                  "鼠标指针: 15.0", "滚动速度: 3.0", "死区: 0.2"}));
  EXPECT_TRUE(host.shows("摇杆控制"));
  EXPECT_TRUE(host.shows("鼠标指针"));
}

TEST_F(JoystickPanelTest, UsesTheGivenSizesAndColours) {
  switchOn();
  for (auto* const label : host.panel(3).findChildren<QLabel*>()) {
    const auto& line = *dynamic_cast<WrappingLabel*>(label);
    const QString text = label->text();
    const bool isInformation = text.contains("_STICK");
    EXPECT_EQ(label->font().pixelSize(), isInformation ? 9 : 10) << text.toStdString();
    if (text.startsWith("LEFT")) {
      EXPECT_EQ(line.color(), AppTheme::secondaryAccent());
    }
    if (text.startsWith("RIGHT")) {
      EXPECT_EQ(line.color(), AppTheme::success());
    }
  }
  const QFont font = host.control<QCheckBox>("JOYSTICK_CONTROL")->font();
  EXPECT_EQ(font.weight(), QFont::Black);
  EXPECT_EQ(font.pixelSize(), 10);
}

TEST_F(JoystickPanelTest, FramesItsInformationThinlyOnAFadedGround) {
  switchOn();
  auto& box = *dynamic_cast<CardFrame*>(host.control<QLabel>(glyph)->parentWidget());
  EXPECT_EQ(box.contentLayout()->contentsMargins(), QMargins(8, 8, 8, 8));
  EXPECT_EQ(box.contentLayout()->spacing(), 4);
  const QImage picture = host.panel(3).grab().toImage();
  const QPoint middle = box.mapTo(&host.panel(3), QPoint(0, box.height() / 2));
  EXPECT_EQ(picture.pixelColor(middle), AppTheme::borderColor());
  EXPECT_EQ(runLength(picture, middle, {1, 0}), 1);
  EXPECT_TRUE(isNearly(picture.pixelColor(middle + QPoint(2, 0)),
                       blended(AppTheme::background(), 0.5, AppTheme::cardBackground())));
  const QPoint end = middle + QPoint(box.width() - 1, 0);
  EXPECT_EQ(picture.pixelColor(end), AppTheme::borderColor()) << "no room for a shadow";
  EXPECT_EQ(picture.pixelColor(end + QPoint(1, 0)), AppTheme::cardBackground());
}

}  // namespace
}  // namespace vantorel
