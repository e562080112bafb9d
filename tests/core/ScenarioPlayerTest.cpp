#include "ScenarioPlayer.h"

#include <gmock/gmock.h>

#include "DemoScenario.h"
#include "ScenarioPlay.h"

namespace vantorel {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

TEST(ScenarioPlayerTest, PlaysTheFirstPressOfAnyone) {
  const auto all =
      played(
          "device pad vendor \"Xbox Wireless Controller\" category \"Xbox One\" extended\nplug pad\n"
          "launch\nmapping on\nwait 10ms\npress pad buttonB\nwait 200ms\nshow\n")
          .timedLines();
  const std::vector<std::string> presses{
      "    0.000  hotkey register VTKY 1 46 768 -> 0",
      "    0.000  | ✅ 热键已注册: Command + Shift + M",
      "    0.000  | [09:00:00] 🔄 已更新 8 个按键映射",
      "    0.010  | [09:00:00] 🎮 按下: B",
      "    0.010  | [09:00:00] ⌨️  映射: B → ESC",
      "    0.010  | [09:00:00] ⌨️  发送: B → ESC",
      "    0.010  | 🔧 开始发送键盘事件: ESC (keyCode=53)",
      "    0.010  | ✅ CGEvent 按下事件创建成功",
      "    0.010  key down 53",
      "    0.010  | ✅ 已发送按键按下事件 (.cgSessionEventTap)",
      "    0.060  | ✅ CGEvent 释放事件创建成功",
      "    0.060  key up 53",
      "    0.060  | ✅ 已发送按键释放事件 (.cgSessionEventTap)",
      "    0.060  | 🏁 键盘事件发送完成",
      "    0.060  | [09:00:00] 🎮 B 按下",
      "    0.060  | [09:00:00] 🎮 按下: B",
      "    0.060  | [09:00:00] ⌨️  映射: B → ESC",
      "    0.060  | [09:00:00] ⌨️  发送: B → ESC",
      "    0.060  | 🔧 开始发送键盘事件: ESC (keyCode=53)",
      "    0.060  | ✅ CGEvent 按下事件创建成功",
      "    0.060  key down 53",
      "    0.060  | ✅ 已发送按键按下事件 (.cgSessionEventTap)",
      "    0.110  | ✅ CGEvent 释放事件创建成功",
      "    0.110  key up 53",
      "    0.110  | ✅ 已发送按键释放事件 (.cgSessionEventTap)",
      "    0.110  | 🏁 键盘事件发送完成",
      "    0.210  = isEnabled true",
      "    0.210  = isControllerConnected true",
  };
  const auto begin = std::find(all.begin(), all.end(), presses.front());
  ASSERT_GE(all.end() - begin, 52);
  EXPECT_THAT(std::vector(begin, begin + 28), ElementsAreArray(presses));
  EXPECT_EQ(begin[42], "    0.210  = joystick.deadzone 0.15");
  EXPECT_EQ(begin[43], "    0.210  = selectedGamepadButton none");
  EXPECT_EQ(begin[45], "    0.210  = debugLogs 20");
  EXPECT_EQ(begin[46], "    0.210  = debugLogs[0] [09:00:00] ⌨️  发送: B → ESC");
  EXPECT_EQ(all.end() - begin, 66);
}

TEST(ScenarioPlayerTest, EndsAfterTheTrailingWaits) {
  const std::string start =
      "device pad vendor Pad category C extended\nplug pad\nlaunch\nstick pad left 1 0\njoystick on\n";
  EXPECT_THAT(played(start).linesWith("mouse"), ElementsAre("mouse move 515 400"));
  EXPECT_THAT(played(start + "wait 16ms\n").linesWith("mouse"),
              ElementsAre("mouse move 515 400", "mouse move 530 400"));
  EXPECT_THAT(played(start + "wait 17.9ms\nwait 14.1ms").linesWith("mouse"), testing::SizeIs(3));
}

TEST(ScenarioPlayerTest, EndsWhenTheMainQueueIsEmptyAndFree) {
  const auto lines =
      played(
          "device pad vendor Pad category C extended\nplug pad\nlaunch\nmapping on\nwait 10ms\n"
          "press pad buttonB\n")
          .timedLines();
  // The press lasts beyond the last line; the polling sees it meanwhile and the second press follows.
  EXPECT_EQ(lines.back(), "    0.110  | 🏁 键盘事件发送完成");
}

TEST(ScenarioPlayerTest, WritesEachLineAsItHappens) {
  const auto parsed = parseScenario("launch\nwait 1s\nquit\n", "test");
  int lines = 0;
  std::vector<int> linesAtQuit;
  ScenarioPlayer* running = nullptr;
  ScenarioPlayer player(std::get<Scenario>(parsed), [&](std::string_view line) {
    ++lines;
    if (line.starts_with("    0.000")) return;
    linesAtQuit.push_back(lines);
    EXPECT_EQ(running->window(), nullptr);
  });
  running = &player;
  player.play();
  EXPECT_THAT(linesAtQuit, ElementsAre(lines));
}

TEST(ScenarioPlayerTest, KeepsTheWindowAsItStandsAtTheEnd) {
  const auto parsed = parseScenario("launch\nmapping on\npick menu\nlanguage 中文\n", "test");
  ScenarioPlayer player(std::get<Scenario>(parsed), nullptr);
  EXPECT_EQ(player.window(), nullptr);
  player.play();
  ASSERT_NE(player.window(), nullptr);
  EXPECT_TRUE(player.window()->isEnabled);
  EXPECT_EQ(player.window()->selectedGamepadButton.get(), GamepadButton::menu);
  EXPECT_EQ(player.window()->localization.currentLanguage(), AppLanguage::chinese);
}

TEST(ScenarioPlayerTest, HasNoWindowAfterTheProgramEnded) {
  const auto parsed = parseScenario("launch\nquit\n", "test");
  ScenarioPlayer player(std::get<Scenario>(parsed), nullptr);
  player.play();
  EXPECT_EQ(player.window(), nullptr);
}

TEST(ScenarioPlayerTest, WritesNothingMoreOnceThePlayIsOver) {
  EmbeddedRecord record;
  std::vector<std::string> atTheEnd;
  {
    const auto parsed = parseScenario("launch\nmenubar on\njoystick on\n", "test");
    ScenarioPlayer player(std::get<Scenario>(parsed), record.sink());
    player.play();
    atTheEnd = record.lines();
    EXPECT_EQ(atTheEnd.back(), "|    灵敏度: 3.0, 死区: 0.15");
  }
  EXPECT_EQ(record.lines(), atTheEnd);
}

TEST(ScenarioPlayerTest, PlaysNothingOfAnEmptyScenario) {
  EXPECT_THAT(played("wait 10s\n# end\n").lines(), IsEmpty());
}

TEST(ScenarioPlayerTest, GivesTheSameTranscriptEveryTime) {
  EXPECT_EQ(played(demoScenario()).timedLines(), played(demoScenario()).timedLines());
}

}  // namespace
}  // namespace vantorel
