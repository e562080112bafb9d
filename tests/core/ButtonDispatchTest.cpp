// How a press becomes a key, and the log that tells of it.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Manager.h"

namespace vantorel::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

class ButtonDispatch : public ::testing::Test {
 protected:
  /// Presses and releases `button`; its change handler alone is at work, as the polling has no time to run.
  void tap(GamepadButton button) {
    pad->press(button);
    pad->release(button);
    machine.settle();
  }

  Manager machine;
  std::shared_ptr<EmbeddedController> pad = machine.plugPad();
  GameControllerManager& manager = machine.launch();
};

TEST_F(ButtonDispatch, ReportsAPressWhileTheTableIsEmpty) {
  tap(GamepadButton::buttonB);
  EXPECT_THAT(machine.take(),
              ElementsAre("| [09:00:00] 🎮 按下: B", "| [09:00:00] ⚠️  B 未设置映射"));
  EXPECT_EQ(manager.debugMessage.get(), "⚠️  B 未设置映射");
  EXPECT_EQ(manager.lastButtonPressed.get(), GamepadButton::buttonB);
  EXPECT_EQ(manager.lastKeyboardKeyPressed.get(), std::nullopt);
}

TEST_F(ButtonDispatch, SendsTheKeyOfAMappedButton) {
  machine.map({{GamepadButton::buttonB, KeyboardKey::escape}});
  tap(GamepadButton::buttonB);
  EXPECT_THAT(machine.takeOutput(),
              ElementsAre("🎮 按下: B", "⌨️  映射: B → ESC", "⌨️  发送: B → ESC",
                          "🔧 开始发送键盘事件: ESC (keyCode=53)", "✅ CGEvent 按下事件创建成功",
                          "✅ 已发送按键按下事件 (.cgSessionEventTap)", "✅ CGEvent 释放事件创建成功",
                          "✅ 已发送按键释放事件 (.cgSessionEventTap)", "🏁 键盘事件发送完成"));
  EXPECT_EQ(manager.debugMessage.get(), "✅ B → ESC");
  EXPECT_EQ(manager.lastKeyboardKeyPressed.get(), KeyboardKey::escape);
  EXPECT_TRUE(manager.hasAccessibilityPermission);
}

TEST_F(ButtonDispatch, RefusesWithoutPermission) {
  machine.map({{GamepadButton::buttonB, KeyboardKey::escape}});
  machine.platform.accessibility.setGranted(false);
  tap(GamepadButton::buttonB);
  EXPECT_THAT(machine.take(), ElementsAre("| [09:00:00] 🎮 按下: B", "| [09:00:00] ⌨️  映射: B → ESC",
                                          "prompt", "| [09:00:00] ❌ 权限状态: 未授权，无法发送按键"));
  EXPECT_EQ(manager.debugMessage.get(), "❌ 需要辅助功能权限");
  EXPECT_FALSE(manager.hasAccessibilityPermission);
  EXPECT_EQ(manager.lastKeyboardKeyPressed.get(), std::nullopt);
}

TEST_F(ButtonDispatch, AsksForThePermissionAtEveryMappedPress) {
  machine.map({{GamepadButton::buttonB, KeyboardKey::escape}});
  machine.platform.accessibility.setGranted(false);
  tap(GamepadButton::buttonB);
  EXPECT_FALSE(manager.hasAccessibilityPermission);
  machine.platform.accessibility.setGranted(true);
  tap(GamepadButton::buttonB);
  EXPECT_TRUE(manager.hasAccessibilityPermission);
  EXPECT_EQ(manager.lastKeyboardKeyPressed.get(), KeyboardKey::escape);
}

TEST_F(ButtonDispatch, NamesButtonAndKeyInTheLanguageOfTheMoment) {
  machine.map({{GamepadButton::dpadUp, KeyboardKey::space}});
  tap(GamepadButton::dpadUp);
  EXPECT_THAT(machine.takeOutput(), Contains("⌨️  发送: D-PAD_UP → SPACE"));
  machine.language = AppLanguage::chinese;
  tap(GamepadButton::dpadUp);
  EXPECT_THAT(machine.takeOutput(), Contains("⌨️  发送: 方向键上 → 空格"));
  EXPECT_EQ(manager.debugMessage.get(), "✅ 方向键上 → 空格");
  EXPECT_THAT(manager.debugLogs.get(), Contains("[09:00:00] ⌨️  发送: D-PAD_UP → SPACE"))
      << "lines keep their language";
}

TEST_F(ButtonDispatch, PublishesAfterItsBlockOnly) {
  machine.map({{GamepadButton::buttonB, KeyboardKey::escape}});
  std::vector<std::string> order;
  const auto button = manager.lastButtonPressed.observe([&] { order.emplace_back("button"); });
  const auto permission =
      manager.hasAccessibilityPermission.observe([&] { order.emplace_back("permission"); });
  const auto key = manager.lastKeyboardKeyPressed.observe([&] {
    order.emplace_back("key");
    EXPECT_EQ(manager.debugMessage.get(), "") << "the key comes before the message";
  });
  const auto message = manager.debugMessage.observe([&] { order.emplace_back("message"); });
  tap(GamepadButton::buttonB);
  EXPECT_THAT(order, ElementsAre("button", "permission", "key", "message"));
}

TEST_F(ButtonDispatch, OfTwoRecordsForAButtonTheLaterHoldsAndBothCount) {
  manager.updateMappings(
      {{GamepadButton::buttonB, KeyboardKey::escape}, {GamepadButton::buttonB, KeyboardKey::tab}});
  EXPECT_THAT(machine.takeOutput(), ElementsAre("🔄 已更新 2 个按键映射"));
  tap(GamepadButton::buttonB);
  EXPECT_EQ(manager.lastKeyboardKeyPressed.get(), KeyboardKey::tab);
}

TEST_F(ButtonDispatch, AnEmptyListClearsTheTable) {
  machine.map({{GamepadButton::buttonB, KeyboardKey::escape}});
  manager.updateMappings({});
  EXPECT_THAT(machine.takeOutput(), ElementsAre("🔄 已清空按键映射"));
  tap(GamepadButton::buttonB);
  EXPECT_THAT(machine.takeEffects(), IsEmpty());
}

TEST_F(ButtonDispatch, TheLogKeepsTheTwentyNewestLinesNewestFirst) {
  for (int line = 1; line <= 25; ++line) {
    manager.updateMappings(std::vector<ButtonMapping>(static_cast<std::size_t>(line),
                                                      ButtonMapping(GamepadButton::buttonA, KeyboardKey::a)));
  }
  machine.settle();
  const auto& log = manager.debugLogs.get();
  ASSERT_EQ(log.size(), 20U);
  EXPECT_EQ(log.front(), "[09:00:00] 🔄 已更新 25 个按键映射");
  EXPECT_EQ(log.back(), "[09:00:00] 🔄 已更新 6 个按键映射");
}

TEST_F(ButtonDispatch, TheLogGrowsToTwentyLines) {
  const auto before = manager.debugLogs.get().size();
  ASSERT_LT(before, 20U);
  for (std::size_t line = before; line < 20; ++line) manager.updateMappings({});
  machine.settle();
  EXPECT_EQ(manager.debugLogs.get().size(), 20U);
  EXPECT_EQ(manager.debugLogs.get().back(), "[09:00:00] 🚀 应用启动");
}

TEST_F(ButtonDispatch, ALineIsPrintedAtOnceAndEntersTheLogLater) {
  const auto before = manager.debugLogs.get();
  manager.updateMappings({});
  EXPECT_THAT(machine.takeOutput(), ElementsAre("🔄 已清空按键映射"));
  EXPECT_EQ(manager.debugLogs.get(), before);
  machine.settle();
  EXPECT_EQ(manager.debugLogs.get().front(), "[09:00:00] 🔄 已清空按键映射");
}

TEST_F(ButtonDispatch, ALineBearsTheLocalTime) {
  machine.advance(3723s);
  manager.updateMappings({});
  EXPECT_THAT(machine.take(), ElementsAre("| [10:02:03] 🔄 已清空按键映射"));
}

TEST_F(ButtonDispatch, AddingToTheLogLeavesTheMessageAlone) {
  tap(GamepadButton::buttonB);
  manager.updateMappings({});
  machine.settle();
  EXPECT_EQ(manager.debugMessage.get(), "⚠️  B 未设置映射");
}

}  // namespace
}  // namespace vantorel::test
