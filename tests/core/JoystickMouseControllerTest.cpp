#include "JoystickMouseController.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Machine.h"

namespace vantorel::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string missingLine = "⚠️ 摇杆控制: 没有手柄连接";
const std::string clickLine = "🖱️ 左摇杆按下: 产生点击事件";

class ThumbstickMouse : public ::testing::Test {
 protected:
  /// Starts with a pad and forgets what was recorded so far; the first tick has run.
  void startWithPad() {
    controller->setup(pad->extendedGamepad());
    controller->start();
    machine.settle();
    machine.take();
  }

  /// One tick with the sticks as given.
  std::vector<std::string> tick(StickPosition left, StickPosition right = {}) {
    pad->moveLeftThumbstick(left);
    pad->moveRightThumbstick(right);
    machine.advance(16ms);
    return machine.takeEffects();
  }

  Machine machine;
  std::shared_ptr<EmbeddedController> pad = machine.plugPad();
  std::unique_ptr<JoystickMouseController> controller =
      std::make_unique<JoystickMouseController>(machine.platform.ports());
};

TEST_F(ThumbstickMouse, HasItsDefaults) {
  EXPECT_FALSE(controller->isEnabled);
  EXPECT_EQ(controller->sensitivity, 3.0F);
  EXPECT_EQ(controller->mouseSensitivity, 15.0F);
  EXPECT_EQ(controller->deadzone, 0.15F);
}

TEST_F(ThumbstickMouse, SaysWithWhatItStarts) {
  controller->start();
  EXPECT_THAT(machine.takeOutput(), ElementsAre("✅ 启动摇杆触摸屏滚动控制", "   灵敏度: 3.0, 死区: 0.15"));
}

TEST_F(ThumbstickMouse, SaysTheSettingsInTheirShortestForm) {
  controller->sensitivity = 3.5F;
  controller->deadzone = 0.1F;
  controller->start();
  EXPECT_THAT(machine.takeOutput(), Contains("   灵敏度: 3.5, 死区: 0.1"));
}

TEST_F(ThumbstickMouse, ASecondStartOnlySaysSo) {
  startWithPad();
  controller->start();
  EXPECT_THAT(machine.takeOutput(), ElementsAre("⚠️ 摇杆滚动已经在运行"));
  EXPECT_EQ(tick({1, 0}).size(), 1U) << "one timer, not two";
}

TEST_F(ThumbstickMouse, StopSaysSoEachTime) {
  controller->stop();
  controller->stop();
  EXPECT_THAT(machine.takeOutput(), ElementsAre("🛑 停止摇杆触摸屏滚动控制",
                                                "🛑 停止摇杆触摸屏滚动控制"));
}

TEST_F(ThumbstickMouse, StoppedItDoesNothing) {
  startWithPad();
  controller->stop();
  machine.take();
  EXPECT_THAT(tick({1, 1}, {1, 1}), IsEmpty());
}

TEST_F(ThumbstickMouse, EndsWithTheStopLine) {
  controller.reset();
  EXPECT_THAT(machine.takeOutput(), ElementsAre("🛑 停止摇杆触摸屏滚动控制"));
}

TEST_F(ThumbstickMouse, TicksAtOnceAndEverySixteenMilliseconds) {
  controller->setup(pad->extendedGamepad());
  pad->moveLeftThumbstick({1, 0});
  controller->start();
  machine.settle();
  EXPECT_EQ(machine.takeEffects().size(), 1U);
  machine.advance(15ms);
  EXPECT_THAT(machine.takeEffects(), IsEmpty());
  machine.advance(1ms);
  EXPECT_EQ(machine.takeEffects().size(), 1U);
  machine.advance(160ms);
  EXPECT_EQ(machine.takeEffects().size(), 10U);
}

TEST_F(ThumbstickMouse, MovesTheCursorByTheDeflection) {
  startWithPad();
  EXPECT_THAT(tick({0.5F, 0}), ElementsAre("mouse move 507.5 400"));
  EXPECT_THAT(tick({0, 1}), ElementsAre("mouse move 507.5 385"));
  EXPECT_THAT(tick({-1, -1}), ElementsAre("mouse move 492.5 400"));
}

TEST_F(ThumbstickMouse, ComparesEachAxisStrictlyWithTheDeadZone) {
  startWithPad();
  EXPECT_THAT(tick({0.15F, 0}), IsEmpty());
  EXPECT_THAT(tick({0, -0.15F}), IsEmpty());
  EXPECT_THAT(tick({0.14F, 0.14F}), IsEmpty()) << "there is no radial dead zone";
  EXPECT_EQ(tick({0.16F, 0}).size(), 1U);
  EXPECT_EQ(tick({0, -0.16F}).size(), 1U);
}

TEST_F(ThumbstickMouse, KeepsTheSmallValueOfTheOtherAxis) {
  startWithPad();
  EXPECT_THAT(tick({1, 0.125F}), ElementsAre("mouse move 515 398.125"));
}

TEST_F(ThumbstickMouse, FormsTheProductsInSinglePrecision) {
  startWithPad();
  const double x = 500.0 + static_cast<double>(0.16F * 15.0F);
  machine.platform.eventPoster.setCursor({500, 400});
  tick({0.16F, 0});
  EXPECT_EQ(machine.platform.eventPoster.cursorLocation()->x, x);
}

TEST_F(ThumbstickMouse, ReadsItsSettingsAfreshAtEachTick) {
  startWithPad();
  controller->mouseSensitivity = 5.0F;
  EXPECT_THAT(tick({1, 0}), ElementsAre("mouse move 505 400"));
  controller->deadzone = 0.5F;
  EXPECT_THAT(tick({0.5F, 0}), IsEmpty());
}

TEST_F(ThumbstickMouse, DoesNothingElseInATickWithoutACursor) {
  startWithPad();
  machine.platform.faults.set(Fault::cursor, true);
  pad->press(GamepadButton::leftThumbstick);
  EXPECT_THAT(tick({1, 0}, {0, 1}), IsEmpty());
  EXPECT_THAT(tick({0, 0}, {0, 1}), ElementsAre("scroll 3 0 continuous=1 delta=3,0"))
      << "inside the dead zone the cursor is not asked for";
}

TEST_F(ThumbstickMouse, SkipsAMoveThatCannotBeMade) {
  startWithPad();
  machine.platform.faults.set(Fault::mouseMove, true);
  EXPECT_THAT(tick({1, 0}, {0, 1}), ElementsAre("scroll 3 0 continuous=1 delta=3,0"));
}

TEST_F(ThumbstickMouse, ClicksOnceForEachPress) {
  startWithPad();
  pad->press(GamepadButton::leftThumbstick);
  machine.advance(160ms);
  EXPECT_THAT(machine.take(), ElementsAre("mouse down 500 400", "mouse up 500 400", "| " + clickLine));
  pad->release(GamepadButton::leftThumbstick);
  machine.advance(16ms);
  pad->press(GamepadButton::leftThumbstick);
  machine.advance(16ms);
  EXPECT_THAT(machine.takeEffects(), ElementsAre("mouse down 500 400", "mouse up 500 400"));
}

TEST_F(ThumbstickMouse, ClicksWhereTheCursorHasMoved) {
  startWithPad();
  pad->press(GamepadButton::leftThumbstick);
  EXPECT_THAT(tick({1, 0}), ElementsAre("mouse move 515 400", "mouse down 515 400", "mouse up 515 400"));
}

TEST_F(ThumbstickMouse, MakesNoLateClickWhenTheCursorWasNotFound) {
  startWithPad();
  machine.platform.faults.set(Fault::cursor, true);
  pad->press(GamepadButton::leftThumbstick);
  machine.advance(16ms);
  machine.platform.faults.set(Fault::cursor, false);
  machine.advance(160ms);
  EXPECT_THAT(machine.take(), IsEmpty());
}

TEST_F(ThumbstickMouse, PostsTheUpWhenTheDownCannotBeMade) {
  startWithPad();
  machine.platform.faults.set(Fault::mouseDown, true);
  pad->press(GamepadButton::leftThumbstick);
  machine.advance(16ms);
  EXPECT_THAT(machine.take(), ElementsAre("mouse up 500 400", "| " + clickLine));
}

TEST_F(ThumbstickMouse, SaysThatItClickedEvenWhenTheUpCannotBeMade) {
  startWithPad();
  machine.platform.faults.set(Fault::mouseUp, true);
  pad->press(GamepadButton::leftThumbstick);
  machine.advance(16ms);
  EXPECT_THAT(machine.take(), ElementsAre("mouse down 500 400", "| " + clickLine));
}

TEST_F(ThumbstickMouse, NeverClicksWithoutTheButton) {
  pad = machine.plug({"Pad", "Pad", ControllerProfile::extended, {GamepadButton::leftThumbstick}});
  startWithPad();
  pad->press(GamepadButton::leftThumbstick);
  EXPECT_THAT(tick({1, 0}), ElementsAre("mouse move 515 400"));
}

TEST_F(ThumbstickMouse, ScrollsUpAndDownAndSideways) {
  startWithPad();
  EXPECT_THAT(tick({}, {0, 1}), ElementsAre("scroll 3 0 continuous=1 delta=3,0"));
  EXPECT_THAT(tick({}, {0, -1}), ElementsAre("scroll -3 0 continuous=1 delta=-3,0"));
  EXPECT_THAT(tick({}, {1, 0}), ElementsAre("scroll 0 3 continuous=1 delta=0,3"));
  EXPECT_THAT(tick({}, {-1, 0}), ElementsAre("scroll 0 -3 continuous=1 delta=0,-3"));
}

TEST_F(ThumbstickMouse, TruncatesScrollingTowardsZeroAndStillPostsIt) {
  startWithPad();
  EXPECT_THAT(tick({}, {0, 0.2F}), ElementsAre("scroll 0 0 continuous=1 delta=0,0"));
  EXPECT_THAT(tick({}, {0.9F, -0.9F}), ElementsAre("scroll -2 2 continuous=1 delta=-2,2"));
}

TEST_F(ThumbstickMouse, DoesNotScrollInsideTheDeadZone) {
  startWithPad();
  EXPECT_THAT(tick({}, {0.15F, 0.15F}), IsEmpty());
}

TEST_F(ThumbstickMouse, WritesTheStickOnTheFirstAndEveryThirtiethScrollingTick) {
  startWithPad();
  pad->moveRightThumbstick({0, -0.87F});
  machine.advance(16ms * 30);
  EXPECT_THAT(machine.takeOutput(), ElementsAre("🕹️ 右摇杆值: X=0.00, Y=-0.87"));
  machine.advance(16ms);
  EXPECT_THAT(machine.takeOutput(), ElementsAre("🕹️ 右摇杆值: X=0.00, Y=-0.87"));
}

TEST_F(ThumbstickMouse, CountsScrollingTicksAcrossStopAndStartAndFailures) {
  machine.platform.faults.set(Fault::scroll, true);
  startWithPad();
  pad->moveRightThumbstick({0.5F, 0});
  machine.advance(16ms * 20);
  EXPECT_THAT(machine.take(), ElementsAre("| 🕹️ 右摇杆值: X=0.50, Y=0.00"));
  controller->stop();
  machine.advance(1s);
  controller->start();  // its first tick is the 21st
  machine.settle();
  machine.take();
  machine.advance(16ms * 9);
  EXPECT_THAT(machine.take(), IsEmpty());
  machine.advance(16ms);
  EXPECT_THAT(machine.takeOutput(), ElementsAre("🕹️ 右摇杆值: X=0.50, Y=0.00"));
}

TEST_F(ThumbstickMouse, ReportsAMissingGamepadAtMostEveryTwoSeconds) {
  controller->start();
  machine.take();
  machine.advance(2000ms);
  EXPECT_THAT(machine.take(), IsEmpty()) << "two seconds are not more than two seconds";
  machine.advance(16ms);
  EXPECT_THAT(machine.takeOutput(), ElementsAre(missingLine));
  machine.advance(2000ms);
  EXPECT_THAT(machine.take(), IsEmpty());
  machine.advance(16ms);
  EXPECT_THAT(machine.takeOutput(), ElementsAre(missingLine));
}

TEST_F(ThumbstickMouse, CountsTheTwoSecondsFromItsConstruction) {
  machine.advance(3s);
  controller->start();
  machine.settle();
  EXPECT_THAT(machine.takeOutput(), Contains(missingLine));
}

TEST_F(ThumbstickMouse, HoldsTheGamepadWeakly) {
  auto gamepad = std::make_shared<EmbeddedGamepad>(machine.platform.time, std::set<GamepadButton>{});
  gamepad->setLeftThumbstick({1, 0});
  controller->setup(gamepad);
  controller->start();
  machine.settle();
  EXPECT_THAT(machine.takeEffects(), ElementsAre("mouse move 515 400"));
  gamepad.reset();
  machine.advance(16ms);
  EXPECT_THAT(machine.takeEffects(), IsEmpty());
}

TEST_F(ThumbstickMouse, TakesAnotherGamepadFromTheNextTickOn) {
  startWithPad();
  const auto other = machine.plugPad();
  other->moveLeftThumbstick({-1, 0});
  controller->setup(other->extendedGamepad());
  machine.advance(16ms);
  EXPECT_THAT(machine.takeEffects(), ElementsAre("mouse move 485 400"));
}

TEST_F(ThumbstickMouse, DoesNotLookAtItsSwitch) {
  startWithPad();
  controller->isEnabled = false;
  EXPECT_EQ(tick({1, 0}).size(), 1U);
}

}  // namespace
}  // namespace vantorel::test
