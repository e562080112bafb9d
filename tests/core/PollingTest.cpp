// The sampling of the adopted gamepad, and the realtime monitor.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Manager.h"

namespace vantorel::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Polling : public ::testing::Test {
 protected:
  std::size_t dispatches(GamepadButton button) {
    const auto output = machine.takeOutput();
    return static_cast<std::size_t>(
        std::count(output.begin(), output.end(), "🎮 " + std::string(englishName(button)) + " 按下"));
  }

  Manager machine;
  std::shared_ptr<EmbeddedController> pad = machine.plugPad();
  GameControllerManager& manager = machine.launch();
};

TEST_F(Polling, SendsAHeldButtonOnce) {
  machine.map({{GamepadButton::buttonA, KeyboardKey::a}});
  pad->press(GamepadButton::buttonA);
  machine.advance(1s);
  EXPECT_EQ(dispatches(GamepadButton::buttonA), 1U);
  pad->release(GamepadButton::buttonA);
  machine.advance(1s);
  EXPECT_EQ(dispatches(GamepadButton::buttonA), 0U);
  pad->press(GamepadButton::buttonA);
  machine.advance(1s);
  EXPECT_EQ(dispatches(GamepadButton::buttonA), 1U);
}

TEST_F(Polling, SamplesEveryFiftyMilliseconds) {
  machine.map({{GamepadButton::buttonA, KeyboardKey::a}});
  machine.advance(50ms);
  pad->press(GamepadButton::buttonA);
  machine.advance(49ms);
  EXPECT_THAT(machine.take(), ElementsAre("| [09:00:00] 🎮 [事件] A按钮按下"));
  machine.advance(1ms);
  EXPECT_THAT(machine.takeEffects(), Contains("key down 0"));
}

TEST_F(Polling, AMappedPressOfAnyOtherButtonIsSentTwice) {
  machine.map({{GamepadButton::buttonB, KeyboardKey::b}});
  pad->press(GamepadButton::buttonB);
  machine.advance(1s);
  EXPECT_THAT(machine.takeEffects(), ElementsAre("key down 11", "key up 11", "key down 11", "key up 11"));
}

TEST_F(Polling, AnnouncesAPressInTheLanguageOfTheMoment) {
  machine.language = AppLanguage::chinese;
  machine.map({{GamepadButton::dpadUp, KeyboardKey::a}});
  pad->press(GamepadButton::dpadUp);
  machine.advance(1s);
  EXPECT_THAT(machine.takeOutput(), Contains("🎮 方向键上 按下"));
}

TEST_F(Polling, MissesAPressBetweenTwoSamples) {
  machine.map({{GamepadButton::buttonA, KeyboardKey::a}});
  machine.advance(10ms);
  pad->press(GamepadButton::buttonA);
  machine.advance(10ms);
  pad->release(GamepadButton::buttonA);
  machine.advance(1s);
  EXPECT_THAT(machine.takeEffects(), IsEmpty());
}

TEST_F(Polling, AnUnmappedButtonIsNotDispatched) {
  machine.map({{GamepadButton::buttonB, KeyboardKey::b}});
  pad->press(GamepadButton::buttonX);
  machine.advance(1s);
  EXPECT_THAT(machine.takeOutput(), ElementsAre("🎮 按下: X", "⚠️  X 未设置映射"))
      << "the handler alone";
  pad->press(GamepadButton::buttonA);
  machine.advance(1s);
  EXPECT_THAT(machine.takeOutput(), ElementsAre("🎮 [事件] A按钮按下"));
}

TEST_F(Polling, AnUnmappedAIsNotTheLastButtonPressed) {
  machine.map({{GamepadButton::buttonB, KeyboardKey::b}});
  pad->press(GamepadButton::buttonA);
  machine.advance(1s);
  EXPECT_EQ(manager.lastButtonPressed.get(), std::nullopt);
}

TEST_F(Polling, AMappedAIsTheLastButtonPressed) {
  machine.map({{GamepadButton::buttonA, KeyboardKey::b}});
  pad->press(GamepadButton::buttonA);
  machine.advance(1s);
  EXPECT_EQ(manager.lastButtonPressed.get(), GamepadButton::buttonA);
}

TEST_F(Polling, AButtonHeldWhileMappingIsSwitchedOnFiresOnce) {
  pad->press(GamepadButton::buttonA);
  machine.advance(1s);
  machine.map({{GamepadButton::buttonA, KeyboardKey::a}});
  machine.advance(1s);
  EXPECT_EQ(dispatches(GamepadButton::buttonA), 1U);
}

TEST_F(Polling, AnEmptyTableFreezesTheRecordedStates) {
  machine.map({{GamepadButton::buttonA, KeyboardKey::a}});
  pad->press(GamepadButton::buttonA);
  machine.advance(1s);
  manager.updateMappings({});
  pad->release(GamepadButton::buttonA);
  machine.advance(1s);
  pad->press(GamepadButton::buttonA);
  machine.advance(1s);
  machine.map({{GamepadButton::buttonA, KeyboardKey::a}});
  machine.advance(1s);
  EXPECT_EQ(dispatches(GamepadButton::buttonA), 0U) << "recorded as pressed before the table was emptied";
}

TEST_F(Polling, AnUnmappedButtonsStateIsRecordedAllTheSame) {
  machine.map({{GamepadButton::buttonB, KeyboardKey::b}});
  pad->press(GamepadButton::buttonA);
  machine.advance(1s);
  machine.map({{GamepadButton::buttonA, KeyboardKey::a}});
  machine.advance(1s);
  EXPECT_EQ(dispatches(GamepadButton::buttonA), 0U);
}

TEST_F(Polling, AdoptingAgainForgetsTheRecordedStates) {
  machine.map({{GamepadButton::buttonA, KeyboardKey::a}});
  pad->press(GamepadButton::buttonA);
  machine.advance(1s);
  EXPECT_EQ(dispatches(GamepadButton::buttonA), 1U);
  // Down again before the first sample: the polling has never seen it up.
  machine.platform.gameControllers.unplug(pad);
  machine.platform.gameControllers.plug(pad);
  pad->press(GamepadButton::buttonA);
  machine.advance(1s);
  EXPECT_EQ(dispatches(GamepadButton::buttonA), 1U);
}

TEST_F(Polling, GoesOnAfterTheControllerDisconnected) {
  machine.map({{GamepadButton::buttonA, KeyboardKey::a}});
  machine.platform.gameControllers.unplug(pad);
  machine.advance(1s);
  EXPECT_THAT(machine.takeEffects(), IsEmpty()) << "a pad that is gone reads as neutral";
}

TEST_F(Polling, LooksAtTheButtonsInItsOrder) {
  std::vector<ButtonMapping> all;
  for (const GamepadButton button : allGamepadButtons()) all.emplace_back(button, KeyboardKey::a);
  for (const GamepadButton button : allGamepadButtons()) pad->press(button);
  machine.settle();
  machine.map(all);
  machine.advance(5s);
  std::vector<std::string> announced;
  for (const std::string& line : machine.takeOutput()) {
    const std::string end = " 按下";
    if (line.size() > end.size() && line.compare(line.size() - end.size(), end.size(), end) == 0) {
      announced.push_back(line);
    }
  }
  EXPECT_THAT(announced,
              ElementsAre("🎮 A 按下", "🎮 B 按下", "🎮 X 按下", "🎮 Y 按下", "🎮 L1 (LB) 按下", "🎮 R1 (RB) 按下",
                          "🎮 L2 (LT) 按下", "🎮 R2 (RT) 按下", "🎮 D-PAD_UP 按下", "🎮 D-PAD_DOWN 按下",
                          "🎮 D-PAD_LEFT 按下", "🎮 D-PAD_RIGHT 按下", "🎮 MENU 按下", "🎮 LEFT_STICK 按下",
                          "🎮 RIGHT_STICK 按下", "🎮 OPTIONS 按下"));
}

class Monitor : public Polling {
 protected:
  void begin() {
    manager.startRealtimeMonitoring();
    machine.settle();
  }
};

TEST_F(Monitor, SaysThatItBegins) {
  begin();
  EXPECT_THAT(machine.takeOutput(), ElementsAre("🎯 开始实时监测模式...", "📍 请按下任意手柄按钮..."));
}

TEST_F(Monitor, ReportsTheFirstOfFiveButtons) {
  const std::pair<GamepadButton, const char*> reports[] = {
      {GamepadButton::buttonA, "🔴 检测到A按钮按下！"},   {GamepadButton::buttonB, "🔴 检测到B按钮按下！"},
      {GamepadButton::buttonX, "🔴 检测到X按钮按下！"},   {GamepadButton::buttonY, "🔴 检测到Y按钮按下！"},
      {GamepadButton::dpadUp, "🔴 检测到方向键上按下！"},
  };
  for (const auto& [button, report] : reports) {
    begin();
    pad->press(button);
    machine.settle();
    machine.take();
    machine.advance(100ms);
    EXPECT_THAT(machine.takeOutput(), ElementsAre(report));
    machine.advance(20s);
    EXPECT_THAT(machine.take(), IsEmpty()) << "it ends with its report";
    pad->release(button);
  }
}

TEST_F(Monitor, PrefersBToY) {
  begin();
  pad->press(GamepadButton::buttonY);
  pad->press(GamepadButton::buttonB);
  machine.settle();
  machine.take();
  machine.advance(1s);
  EXPECT_THAT(machine.takeOutput(), ElementsAre("🔴 检测到B按钮按下！"));
}

TEST_F(Monitor, DoesNotSeeOtherButtons) {
  begin();
  pad->press(GamepadButton::menu);
  pad->press(GamepadButton::dpadDown);
  machine.settle();
  machine.take();
  machine.advance(10s);
  EXPECT_THAT(machine.take(), IsEmpty());
}

TEST_F(Monitor, GivesUpAtItsHundredAndFirstTick) {
  begin();
  machine.take();
  machine.advance(10'099ms);
  EXPECT_THAT(machine.take(), IsEmpty());
  machine.advance(1ms);
  EXPECT_THAT(machine.takeOutput(), ElementsAre("⏱️ 监测超时（10秒），未检测到按键"));
  machine.advance(20s);
  EXPECT_THAT(machine.take(), IsEmpty());
}

TEST_F(Monitor, ANewStartReplacesARunningOne) {
  begin();
  machine.advance(5s);
  begin();
  machine.take();
  machine.advance(10'000ms);
  EXPECT_THAT(machine.take(), IsEmpty());
  machine.advance(100ms);
  EXPECT_EQ(machine.takeOutput().size(), 1U);
}

TEST_F(Monitor, NeedsAnExtendedGamepad) {
  machine.platform.gameControllers.unplug(pad);
  machine.settle();
  machine.take();
  begin();
  EXPECT_THAT(machine.takeOutput(),
              ElementsAre("🎯 开始实时监测模式...", "📍 请按下任意手柄按钮...", "❌ 无法获取扩展手柄"));
  machine.plug({"Remote", "Micro", ControllerProfile::micro, {}});
  machine.take();
  begin();
  EXPECT_THAT(machine.takeOutput(), Contains("❌ 无法获取扩展手柄"));
  machine.advance(20s);
  EXPECT_THAT(machine.take(), IsEmpty());
}

TEST_F(Monitor, AStartWithoutAGamepadEndsARunningOne) {
  begin();
  machine.platform.gameControllers.unplug(pad);
  machine.settle();
  begin();
  machine.take();
  machine.advance(20s);
  EXPECT_THAT(machine.take(), IsEmpty());
}

TEST_F(Monitor, SendsNothing) {
  machine.map({{GamepadButton::buttonB, KeyboardKey::b}});
  begin();
  pad->press(GamepadButton::buttonA);
  machine.advance(1s);
  EXPECT_THAT(machine.takeEffects(), IsEmpty());
}

TEST_F(Monitor, EndsWithItsManager) {
  begin();
  machine.manager.reset();
  machine.take();
  machine.advance(20s);
  EXPECT_THAT(machine.take(), IsEmpty());
}

}  // namespace
}  // namespace vantorel::test
