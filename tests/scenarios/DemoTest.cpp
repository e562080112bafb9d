// The built-in scenario shows every main feature.

#include <gmock/gmock.h>

#include <fstream>
#include <sstream>

#include "DemoScenario.h"
#include "Play.h"

namespace vantorel {
namespace {

using testing::HasSubstr;
using testing::Not;

class DemoTest : public testing::Test {
 protected:
  const std::string transcript = transcriptOf(demoScenario(), "demo");
};

TEST_F(DemoTest, TakesAFewVirtualMinutesAtMost) {
  const auto parsed = parseScenario(demoScenario(), "demo");
  EXPECT_LE(std::get<Scenario>(parsed).end, std::chrono::minutes(3));
}

TEST_F(DemoTest, CanDoAllOfItsLines) { EXPECT_THAT(transcript, Not(HasSubstr("  ! "))); }

TEST_F(DemoTest, IsTheSameEveryTime) { EXPECT_EQ(transcriptOf(demoScenario(), "demo"), transcript); }

TEST_F(DemoTest, ShowsAControllerBeingAdopted) {
  EXPECT_THAT(transcript, HasSubstr("✅ 成功连接手柄: Xbox Wireless Controller"));
}

TEST_F(DemoTest, ShowsPressesWithTheMappingOffAndOn) {
  EXPECT_THAT(transcript, HasSubstr("⚠️  B 未设置映射"));
  EXPECT_THAT(transcript, HasSubstr("⌨️  发送: B → ESC"));
  EXPECT_THAT(transcript, HasSubstr("  key down 53\n"));
  EXPECT_THAT(transcript, HasSubstr("  key up 53\n"));
}

TEST_F(DemoTest, ShowsAMappingBeingChanged) {
  EXPECT_THAT(transcript, HasSubstr("{\"gamepadButton\":\"buttonA\",\"keyboardKey\":\"returnKey\"}"));
  EXPECT_THAT(transcript, HasSubstr("⌨️  发送: A → ENTER"));
}

TEST_F(DemoTest, ShowsTheThumbstickMouse) {
  EXPECT_THAT(transcript, HasSubstr("  mouse move "));
  EXPECT_THAT(transcript, HasSubstr("  mouse down "));
  EXPECT_THAT(transcript, HasSubstr("  mouse up "));
  EXPECT_THAT(transcript, HasSubstr("  scroll -3 0 continuous=1 delta=-3,0\n"));
}

TEST_F(DemoTest, ShowsTheHotKey) {
  EXPECT_THAT(transcript, HasSubstr("✅ 热键已注册: Command + Shift + M"));
  EXPECT_THAT(transcript, HasSubstr("    7.000  | [09:00:07] 🔄 已清空按键映射"));
  EXPECT_THAT(transcript, HasSubstr("    8.000  | [09:00:08] 🔄 已更新 8 个按键映射"));
}

TEST_F(DemoTest, ShowsMenuBarMode) {
  EXPECT_THAT(transcript, HasSubstr("  status item created\n"));
  EXPECT_THAT(transcript, HasSubstr("  menu ✗ Mapping Inactive (disabled) | -- | Enable Mapping ⌘T | "));
  EXPECT_THAT(transcript, HasSubstr("  policy accessory\n"));
  EXPECT_THAT(transcript, HasSubstr("  status item removed\n"));
}

TEST_F(DemoTest, ShowsBothLanguages) {
  EXPECT_THAT(transcript, HasSubstr("  defaults AppLanguage string 中文\n"));
  EXPECT_THAT(transcript, HasSubstr("⌨️  发送: 方向键上 → ↑"));
  EXPECT_THAT(transcript, HasSubstr("  defaults AppLanguage string EN\n"));
}

TEST_F(DemoTest, ShowsAMissingPermission) {
  EXPECT_THAT(transcript, HasSubstr("  prompt\n"));
  EXPECT_THAT(transcript, HasSubstr("❌ 权限状态: 未授权，无法发送按键"));
  EXPECT_THAT(transcript, HasSubstr("  open x-apple.systempreferences:"));
}

TEST_F(DemoTest, ShowsTheProbe) { EXPECT_THAT(transcript, HasSubstr("🔴 检测到X按钮按下！")); }

TEST_F(DemoTest, ShowsUnpluggingAndAnotherPad) {
  EXPECT_THAT(transcript, HasSubstr("🎮 手柄已断开"));
  EXPECT_THAT(transcript, HasSubstr("🎮 识别类型: PS5 DualSense"));
}

TEST_F(DemoTest, ShowsTheStateAtTheEnd) { EXPECT_THAT(transcript, HasSubstr("  = isEnabled true\n")); }

TEST_F(DemoTest, IsQuotedInTheReadme) {
  std::ifstream stream(VANTOREL_SOURCE_DIR "/README.md");
  std::stringstream readme;
  readme << stream.rdbuf();
  std::istringstream lines{std::string(demoScenario())};
  for (std::string line; std::getline(lines, line);) {
    if (!line.empty()) {
      EXPECT_THAT(readme.str(), HasSubstr("    " + line + "\n"));
    }
  }
}

}  // namespace
}  // namespace vantorel
