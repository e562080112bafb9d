// What a scenario's outside world does to the program.

#include <gmock/gmock.h>

#include "ScenarioPlay.h"

namespace vantorel {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

/// A launched program with an adopted pad, mapping on, 10 ms after the start.
std::string withPad(const std::string& text) {
  return "device pad vendor Pad category C extended\nplug pad\nlaunch\nmapping on\nwait 10ms\n" + text;
}

const std::string mappingOn = "| [09:00:00] 🔄 已更新 8 个按键映射";

TEST(ScenarioWorldTest, PrintsNothingForPreparations) {
  EXPECT_THAT(
      played(
          "trust denied\nfile /a\ndefaults key data x\ndefaults key string x\n"
          "device pad novendor category C extended\nfault key-down on\nfault hotkey 5\ncursor 1 2\n"
          "plug pad\npress pad buttonA\nstick pad left 1 1\nrelease pad buttonA\nunplug pad\nplug nothing\n"
          "hotkey\nwait 1s\n")
          .lines(),
      IsEmpty());
}

TEST(ScenarioWorldTest, AnswersTheQuestionForThePermission) {
  EXPECT_THAT(playedFrom("| [09:00:00] 🔐", "trust denied\nlaunch\ntrust granted\nrefresh\n"),
              Contains("| [09:00:00] 🔐 辅助功能权限: ❌ 未授权"));
  EXPECT_THAT(
      playedFrom("| ✅ 热键", "trust denied\nlaunch\nmapping on\nmapping off\ntrust granted\nmapping on\n"),
      ElementsAre("| ✅ 热键已注册: Command + Shift + M", "prompt", mappingOn, "| [09:00:00] 🔄 已清空按键映射",
                  mappingOn));
}

TEST(ScenarioWorldTest, ChangesThePermissionAtOnceWhileTheMainLaneIsBusy) {
  // Denied in the middle of the first of two presses: the second is refused.
  const auto lines = playedFrom("| 🏁", withPad("press pad buttonB\nwait 20ms\ntrust denied\n"));
  EXPECT_THAT(lines, ElementsAre("| 🏁 键盘事件发送完成", "| [09:00:00] 🎮 B 按下", "| [09:00:00] 🎮 按下: B",
                                 "| [09:00:00] ⌨️  映射: B → ESC", "prompt",
                                 "| [09:00:00] ❌ 权限状态: 未授权，无法发送按键"));
}

TEST(ScenarioWorldTest, HasFilesAndSettingsOfEarlierRuns) {
  EXPECT_EQ(shown("is360ControllerInstalled",
                  "file \"/Library/Application Support/360Controller\"\nlaunch\nshow\n"),
            "true");
  EXPECT_EQ(shown("currentLanguage", "defaults AppLanguage string 中文\nlaunch\nshow\n"), "中文");
  EXPECT_EQ(shown("currentLanguage", "defaults AppLanguage data 中文\nlaunch\nshow\n"), "EN");
}

TEST(ScenarioWorldTest, MakesKeyEventsFail) {
  EXPECT_THAT(
      playedFrom("| 🔧", withPad("fault key-down on\nfault key-up on\npress pad buttonA\nwait 200ms\n")),
      ElementsAre("| 🔧 开始发送键盘事件: SPACE (keyCode=49)", "| ❌ 无法创建 CGEvent 按下事件",
                  "| ❌ 无法创建 CGEvent 释放事件", "| 🏁 键盘事件发送完成"));
}

TEST(ScenarioWorldTest, RefusesHotKeysWithTheStatusThatItWasTold) {
  EXPECT_THAT(
      playedFrom("hotkey", "fault hotkey -9868\nlaunch\nhotkey\nquit\nfault hotkey 0\nlaunch\nhotkey\n"),
      testing::AllOf(testing::Contains("| ❌ 热键注册失败: -9868"),
                     testing::Contains("hotkey register VTKY 1 46 768 -> -9868").Times(1),
                     testing::Contains("hotkey register VTKY 1 46 768 -> 0").Times(1),
                     testing::Contains(mappingOn).Times(1)));
}

TEST(ScenarioWorldTest, KeepsRefusingHotKeysAfterARestart) {
  EXPECT_THAT(played("fault hotkey 7\nlaunch\nquit\nlaunch\n").linesWith("hotkey"),
              ElementsAre("hotkey register VTKY 1 46 768 -> 7", "hotkey register VTKY 1 46 768 -> 7"));
}

TEST(ScenarioWorldTest, FlipsTheSwitchByTheHotKey) {
  EXPECT_THAT(playedFrom("| ✅ 热键", "launch\nhotkey\nhotkey\n"),
              ElementsAre("| ✅ 热键已注册: Command + Shift + M", mappingOn, "| [09:00:00] 🔄 已清空按键映射"));
}

TEST(ScenarioWorldTest, TellsTheProgramOfControllersThatConnect) {
  EXPECT_THAT(
      playedFrom("| [09:00:00] 🎮 手柄",
                 "device a novendor category Remote micro\nlaunch\nplug nothing\nplug a\n"
                 "plug a\nunplug a\nunplug a\n"),
      ElementsAre("| [09:00:00] 🎮 手柄已连接", "| [09:00:00] 🔥 已启用后台事件监听",
                  "| [09:00:00] ✅ 成功连接手柄: 未知手柄", "| [09:00:00] 📊 产品类别: Remote",
                  "| [09:00:00] 🎮 识别类型: Unknown",
                  "| [09:00:00] ⚠️  检测到微型手柄（功能受限）",
                  "| [09:00:00] ❌ 无法配置按键监听：不是扩展手柄",
                  "| [09:00:00] 💡 提示：某些手柄可能需要特殊驱动或设置", "| [09:00:00] 🎮 手柄已断开"));
}

TEST(ScenarioWorldTest, IgnoresTheButtonsOfAControllerThatIsGone) {
  EXPECT_THAT(
      playedFrom(mappingOn,
                 withPad("press pad menu\nunplug pad\nwait 100ms\npress pad buttonA\nrelease pad menu\n"
                         "wait 100ms\n")),
      ElementsAre(mappingOn, "| [09:00:00] 🎮 按下: MENU", "| [09:00:00] ⚠️  MENU 未设置映射",
                  "| [09:00:00] 🎮 手柄已断开"));
}

TEST(ScenarioWorldTest, TellsAChangeHandlerTheStateOfItsLine) {
  // Both changes wait while B is sent; the press still arrives as a press.
  const auto lines = playedFrom(
      mappingOn, withPad("press pad buttonB\nwait 5ms\npress pad menu\nrelease pad menu\nwait 200ms\n"));
  EXPECT_THAT(lines, Contains("| [09:00:00] 🎮 按下: MENU"));
}

TEST(ScenarioWorldTest, SeesNoPressOfAMissingButton) {
  EXPECT_THAT(playedFrom(mappingOn,
                         "device pad vendor Pad category C extended without leftThumbstick options\n"
                         "plug pad\nlaunch\nmapping on\npress pad leftThumbstick\npress pad options\n"
                         "press pad rightThumbstick\nwait 100ms\n"),
              ElementsAre(mappingOn, "| [09:00:00] 🎮 按下: RIGHT_STICK",
                          "| [09:00:00] ⚠️  RIGHT_STICK 未设置映射"));
}

TEST(ScenarioWorldTest, MovesTheCursorFromWhereItWasPut) {
  EXPECT_THAT(
      played(withPad("cursor 10 20\nstick pad left 0.5 1\njoystick on\nwait 16ms\n")).linesWith("mouse"),
      ElementsAre("mouse move 17.5 5", "mouse move 25 -10"));
}

TEST(ScenarioWorldTest, TakesStickValuesInSinglePrecision) {
  // 0.15 is the dead zone itself.
  EXPECT_THAT(
      played(
          withPad("joystick on\nstick pad left 0.15 0\nwait 50ms\nstick pad left 0.1500001 0\nwait 16ms\n"))
          .linesWith("mouse"),
      testing::SizeIs(1));
}

}  // namespace
}  // namespace vantorel
