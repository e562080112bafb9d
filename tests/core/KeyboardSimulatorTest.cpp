#include "KeyboardSimulator.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Machine.h"

namespace vantorel::test {
namespace {

using ::testing::ElementsAre;

class Simulator : public ::testing::Test {
 protected:
  std::vector<std::string> press(KeyboardKey key) {
    simulator.pressKey(key);
    return machine.take();
  }

  Machine machine;
  AppLanguage language = AppLanguage::english;
  KeyboardSimulator simulator{machine.platform.ports(), [this] { return language; }};
};

TEST_F(Simulator, SendsDownAndUp) {
  EXPECT_THAT(
      press(KeyboardKey::space),
      ElementsAre("| 🔧 开始发送键盘事件: SPACE (keyCode=49)", "| ✅ CGEvent 按下事件创建成功", "key down 49",
                  "| ✅ 已发送按键按下事件 (.cgSessionEventTap)", "| ✅ CGEvent 释放事件创建成功", "key up 49",
                  "| ✅ 已发送按键释放事件 (.cgSessionEventTap)", "| 🏁 键盘事件发送完成"));
}

TEST_F(Simulator, NamesTheKeyInChinese) {
  language = AppLanguage::chinese;
  EXPECT_EQ(press(KeyboardKey::returnKey).front(), "| 🔧 开始发送键盘事件: 回车 (keyCode=36)");
}

TEST_F(Simulator, HoldsTheKeyFiftyMillisecondsToTheMicrosecond) {
  const auto before = machine.platform.time.elapsed();
  press(KeyboardKey::space);
  EXPECT_EQ(machine.platform.time.elapsed() - before, 50ms);
}

TEST_F(Simulator, WithoutPermissionOnlySaysSoAndPrompts) {
  machine.platform.accessibility.setGranted(false);
  const auto before = machine.platform.time.elapsed();
  EXPECT_THAT(press(KeyboardKey::space), ElementsAre("prompt", "| ❌ 需要辅助功能权限才能模拟键盘按键"));
  EXPECT_EQ(machine.platform.time.elapsed(), before);
}

TEST_F(Simulator, AttemptsTheUpWhenTheDownCannotBeMade) {
  machine.platform.faults.set(Fault::keyDown, true);
  const auto before = machine.platform.time.elapsed();
  EXPECT_THAT(press(KeyboardKey::tab),
              ElementsAre("| 🔧 开始发送键盘事件: TAB (keyCode=48)", "| ❌ 无法创建 CGEvent 按下事件",
                          "| ✅ CGEvent 释放事件创建成功", "key up 48",
                          "| ✅ 已发送按键释放事件 (.cgSessionEventTap)", "| 🏁 键盘事件发送完成"));
  EXPECT_EQ(machine.platform.time.elapsed() - before, 50ms);
}

TEST_F(Simulator, ReportsAnUpThatCannotBeMade) {
  machine.platform.faults.set(Fault::keyUp, true);
  EXPECT_THAT(press(KeyboardKey::tab),
              ElementsAre("| 🔧 开始发送键盘事件: TAB (keyCode=48)", "| ✅ CGEvent 按下事件创建成功",
                          "key down 48", "| ✅ 已发送按键按下事件 (.cgSessionEventTap)",
                          "| ❌ 无法创建 CGEvent 释放事件", "| 🏁 键盘事件发送完成"));
}

}  // namespace
}  // namespace vantorel::test
