// What a scenario's user does at the window, and what cannot be done.

#include <gmock/gmock.h>

#include "ScenarioPlay.h"

namespace vantorel {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

/// The lines for what could not be done, with the times at which it was tried.
std::vector<std::string> refused(std::string_view text) {
  std::vector<std::string> lines;
  const EmbeddedRecord record = played(text);
  for (const std::string& line : record.timedLines()) {
    if (line.substr(11).starts_with("! ")) lines.push_back(line);
  }
  return lines;
}

TEST(ScenarioUserTest, CannotWorkAtAProgramThatDoesNotRun) {
  EXPECT_THAT(
      played("quit\nmapping on\nmapping off\npick buttonA space\npick buttonA cancel\npick buttonA\n"
             "language EN\njoystick on\njoystick off\njoystick mouse 5\njoystick scroll 5\n"
             "joystick deadzone 0.5\nmenubar on\nmenubar off\nrefresh\nprobe\nfix\ndriver\nshow\n"
             "menu Quit\nhotkey\n")
          .lines(),
      ElementsAre("! quit", "! mapping on", "! mapping off", "! pick buttonA space", "! pick buttonA cancel",
                  "! pick buttonA", "! language EN", "! joystick on", "! joystick off", "! joystick mouse 5",
                  "! joystick scroll 5", "! joystick deadzone 0.5", "! menubar on", "! menubar off",
                  "! refresh", "! probe", "! fix", "! driver", "! show", "! menu Quit"));
}

TEST(ScenarioUserTest, CannotLaunchAProgramThatRuns) {
  EXPECT_THAT(refused("launch\nwait 5ms\nlaunch\n"), ElementsAre("    0.005  ! launch"));
}

TEST(ScenarioUserTest, IsRefusedWithTheTrimmedLine) {
  EXPECT_THAT(refused("  menu   \"Show Window\" \t\r\n"), ElementsAre("    0.000  ! menu   \"Show Window\""));
}

TEST(ScenarioUserTest, IsRefusedWhenTheBlockRuns) {
  // The press keeps the main lane busy for 50 ms; by then the first `quit` has ended the program.
  EXPECT_THAT(refused("device pad novendor category C extended\nplug pad\nlaunch\nmapping on\nwait 10ms\n"
                      "press pad buttonB\nwait 10ms\nquit\nquit\nmapping off\n"),
              ElementsAre("    0.060  ! quit", "    0.060  ! mapping off"));
}

TEST(ScenarioUserTest, DoesNothingBySettingACheckboxToTheValueItHas) {
  EXPECT_THAT(
      playedFrom("| ✅ 热键已注册",
                 "launch\nmapping off\njoystick off\nmenubar off\nmapping on\njoystick on\nmenubar on\n"
                 "mapping on\njoystick on\nmenubar on\n"),
      ElementsAre("| ✅ 热键已注册: Command + Shift + M", "| [09:00:00] 🔄 已更新 8 个按键映射",
                  "| ✅ 启动摇杆触摸屏滚动控制", "|    灵敏度: 3.0, 死区: 0.15", "status item created",
                  "menu ✓ Mapping Active (disabled) | -- | Disable Mapping ⌘T | -- | Show Window ⌘S | "
                  "-- | Quit ⌘Q",
                  "policy accessory"));
}

TEST(ScenarioUserTest, CanFixOnlyWhatShowsAsMissing) {
  // What shows is the answer to the latest question, not the present truth.
  EXPECT_THAT(
      playedFrom("| ✅ 热键已注册", "launch\nfix\ntrust denied\nfix\nrefresh\nfix\ntrust granted\nfix\n"),
      ElementsAre("| ✅ 热键已注册: Command + Shift + M", "! fix", "! fix",
                  "| [09:00:00] 🔐 辅助功能权限: ❌ 未授权",
                  "open x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility",
                  "open x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility"));
}

TEST(ScenarioUserTest, MovesSlidersOnlyWhileTheyAreThere) {
  EXPECT_THAT(refused("launch\njoystick mouse 10\njoystick on\njoystick mouse 10\njoystick off\n"
                      "joystick scroll 2\njoystick deadzone 0.5\n"),
              ElementsAre("    0.000  ! joystick mouse 10", "    0.000  ! joystick scroll 2",
                          "    0.000  ! joystick deadzone 0.5"));
}

TEST(ScenarioUserTest, MovesSlidersToThePointsOfTheirGrid) {
  const auto mouse = [](const std::string& value) {
    return shown("joystick.mouseSensitivity", "launch\njoystick on\njoystick mouse " + value + "\nshow\n");
  };
  EXPECT_EQ(mouse("12.5"), "13");
  EXPECT_EQ(mouse("12.49"), "12");
  EXPECT_EQ(mouse("-100"), "5");
  EXPECT_EQ(mouse("100"), "30");
  const auto scroll = [](const std::string& value) {
    return shown("joystick.sensitivity", "launch\njoystick on\njoystick scroll " + value + "\nshow\n");
  };
  EXPECT_EQ(scroll("3.74"), "3.5");
  EXPECT_EQ(scroll("3.75"), "4");
  const auto deadzone = [](const std::string& value) {
    return shown("joystick.deadzone", "launch\njoystick on\njoystick deadzone " + value + "\nshow\n");
  };
  EXPECT_EQ(deadzone("0.075"), "0.1");
  EXPECT_EQ(deadzone("0.0749"), "0.05");
  EXPECT_EQ(deadzone("0.3"), "0.3");
}

TEST(ScenarioUserTest, LeavesThePickerOpenAndChoosesInItLater) {
  EXPECT_EQ(shown("selectedGamepadButton", "launch\npick menu\nshow\n"), "menu");
  EXPECT_EQ(shown("selectedGamepadButton", "launch\npick menu\npick options cancel\nshow\n"), "none");
  EXPECT_EQ(shown("selectedGamepadButton", "launch\npick menu\npick menu a\nshow\n"), "none");
}

TEST(ScenarioUserTest, FinishesTheChoiceBeforeTheReactionToIt) {
  const auto lines =
      playedFrom("| [09:00:00] 🔄", "launch\nmapping on\npick buttonA a\npick buttonA a\nmapping off\n");
  ASSERT_EQ(lines.size(), 7U);
  EXPECT_EQ(lines[0], "| [09:00:00] 🔄 已更新 8 个按键映射");
  EXPECT_TRUE(lines[1].starts_with("defaults gamepad_keyboard_mappings data [{")) << lines[1];
  EXPECT_EQ(lines[2], "| [09:00:00] 🔄 已更新 8 个按键映射");
  EXPECT_EQ(lines[3], "| [09:00:00] 🔄 已更新 8 个按键映射");
  // The same key again: it is stored, but the mappings have not changed.
  EXPECT_EQ(lines[4], lines[1]);
  EXPECT_EQ(lines[5], "| [09:00:00] 🔄 已更新 8 个按键映射");
  EXPECT_EQ(lines[6], "| [09:00:00] 🔄 已清空按键映射");
}

TEST(ScenarioUserTest, ChoosesALanguageAlsoWhenItIsTheCurrentOne) {
  EXPECT_THAT(played("launch\nlanguage EN\nlanguage 中文\n").linesWith("defaults AppLanguage"),
              ElementsAre("defaults AppLanguage string EN", "defaults AppLanguage string 中文"));
}

TEST(ScenarioUserTest, OpensTheDriversPage) {
  EXPECT_THAT(played("launch\ndriver\n").linesWith("open"),
              ElementsAre("open https://github.com/360Controller/360Controller/releases/tag/v0.16.11"));
}

TEST(ScenarioUserTest, RefreshesThePermission) {
  EXPECT_EQ(shown("hasAccessibilityPermission", "launch\ntrust denied\nshow\n"), "true");
  EXPECT_EQ(shown("hasAccessibilityPermission", "launch\ntrust denied\nrefresh\nshow\n"), "false");
}

TEST(ScenarioUserTest, StartsTheProbe) {
  EXPECT_THAT(playedFrom("| [09:00:00] 🎯", "launch\nprobe\n"),
              ElementsAre("| [09:00:00] 🎯 开始实时监测模式...", "| [09:00:00] 📍 请按下任意手柄按钮...",
                          "| [09:00:00] ❌ 无法获取扩展手柄"));
}

TEST(ScenarioUserTest, ChoosesMenuItemsThatAreThereAndEnabled) {
  EXPECT_THAT(refused("launch\nmenu \"Enable Mapping\"\nmenubar on\nmenu \"Enable Mapping\"\n"
                      "menu \"Enable Mapping\"\nmenu \"✓ Mapping Active\"\nmenu \"\"\nmenu --\n"
                      "menu \"Show Window\"\nmenu \"Show Window\"\n"),
              ElementsAre("    0.000  ! menu \"Enable Mapping\"", "    0.000  ! menu \"Enable Mapping\"",
                          "    0.000  ! menu \"✓ Mapping Active\"", "    0.000  ! menu \"\"",
                          "    0.000  ! menu --", "    0.000  ! menu \"Show Window\""));
}

TEST(ScenarioUserTest, LeavesMenuBarModeByShowWindow) {
  EXPECT_THAT(playedFrom("policy accessory", "launch\nmenubar on\nmenu \"Show Window\"\n"),
              ElementsAre("policy accessory", "policy regular", "policy regular", "status item removed"));
}

TEST(ScenarioUserTest, HasNoMenuWithoutAStatusItem) {
  EXPECT_THAT(
      playedFrom("policy",
                 "fault status-item on\nlaunch\nmenubar on\nmenu Quit\nmenubar off\n"
                 "fault status-item off\nmenubar on\n"),
      ElementsAre("policy accessory", "! menu Quit", "policy regular", "status item created",
                  "menu ✗ Mapping Inactive (disabled) | -- | Enable Mapping ⌘T | -- | Show Window ⌘S | "
                  "-- | Quit ⌘Q",
                  "policy accessory"));
}

TEST(ScenarioUserTest, QuitsSilentlyButForTheThumbstickMouse) {
  EXPECT_THAT(playedFrom("policy", "launch\nmenubar on\nquit\nhotkey\nwait 1s\n"),
              ElementsAre("policy accessory", "| 🛑 停止摇杆触摸屏滚动控制"));
}

TEST(ScenarioUserTest, QuitsFromTheStatusMenu) {
  EXPECT_THAT(playedFrom("policy", "launch\nmenubar on\nmenu Quit\nshow\nmenu Quit\n"),
              ElementsAre("policy accessory", "terminate", "| 🛑 停止摇杆触摸屏滚动控制",
                          "! show", "! menu Quit"));
}

TEST(ScenarioUserTest, LeavesWhatWaitsForAProgramThatHasEndedUndone) {
  // B keeps the main lane busy. The second dispatch, what it has scheduled and the hot key wait behind the
  // quit.
  const auto record = played(
      "device pad novendor category C extended\nplug pad\nlaunch\nmapping on\nwait 10ms\npress pad buttonB\n"
      "wait 10ms\nquit\nhotkey\nwait 1s\n");
  EXPECT_EQ(record.timedLines().back(), "    0.060  | 🛑 停止摇杆触摸屏滚动控制");
  EXPECT_THAT(record.lines(), Not(Contains("| [09:00:00] 🎮 B 按下")));
}

TEST(ScenarioUserTest, LaunchesAnewWithTheStoreTheFilesAndTheDevices) {
  const auto lines = playedFrom(
      "| 🛑",
      "file /Library/Extensions/360Controller.kext\ndevice pad vendor Pad category C extended\nplug pad\n"
      "launch\nmapping on\njoystick on\nlanguage 中文\nmenubar on\npick menu "
      "a\nquit\nlaunch\nshow\nhotkey\n");
  EXPECT_THAT(lines, Contains("| [09:00:00] ✅ 360Controller 驱动已安装"));
  EXPECT_THAT(lines, Contains("| [09:00:00] ✅ 成功连接手柄: Pad"));
  EXPECT_THAT(lines, Contains("defaults AppLanguage string 中文"));
  EXPECT_THAT(lines, Contains("hotkey register VTKY 1 46 768 -> 0"));
  EXPECT_THAT(lines, Contains("= isEnabled false"));
  EXPECT_THAT(lines, Contains("= joystick.isEnabled false"));
  EXPECT_THAT(lines, Contains("= isMenuBarMode false"));
  EXPECT_THAT(lines, Contains("= currentLanguage 中文"));
  EXPECT_EQ(lines.back(), "| [09:00:00] 🔄 已更新 9 个按键映射");
}

TEST(ScenarioUserTest, ShowsTheWholeStateInItsOrder) {
  EXPECT_THAT(
      playedFrom("= ",
                 "defaults gamepad_keyboard_mappings data "
                 "\"[{\\\"gamepadButton\\\":\\\"menu\\\",\\\"keyboardKey\\\":\\\"delete\\\"}]\"\n"
                 "launch\nwait 10ms\nshow\n"),
      ElementsAre("= isEnabled false", "= isControllerConnected false", "= connectedControllerName ",
                  "= lastButtonPressed none", "= debugMessage ", "= lastKeyboardKeyPressed none",
                  "= hasAccessibilityPermission true", "= gamepadType 未知", "= isExtendedGamepad false",
                  "= is360ControllerInstalled false", "= detectedControllerType unknown",
                  "= currentLanguage EN", "= isMenuBarMode false", "= joystick.isEnabled false",
                  "= joystick.sensitivity 3", "= joystick.mouseSensitivity 15", "= joystick.deadzone 0.15",
                  "= selectedGamepadButton none",
                  "= mappings [{\"gamepadButton\":\"menu\",\"keyboardKey\":\"delete\"}]", "= debugLogs 6",
                  "= debugLogs[0] [09:00:00] ⚠️  未发现已连接的手柄",
                  "= debugLogs[1] [09:00:00] 🔍 检查手柄连接，发现 0 个设备",
                  "= debugLogs[2] [09:00:00] 🔐 辅助功能权限: ✅ 已授权",
                  "= debugLogs[3] [09:00:00] 💡 需要安装 360Controller 才能使用 Xbox 手柄",
                  "= debugLogs[4] [09:00:00] ⚠️ 未检测到 360Controller 驱动",
                  "= debugLogs[5] [09:00:00] 🚀 应用启动"));
}

}  // namespace
}  // namespace vantorel
