// The program through the accessibility bus, as a screen reader uses it.

#include <QByteArray>
#include <fstream>
#include <sstream>

#include "WindowTest.h"

namespace vantorel::test {
namespace {

using testing::HasSubstr;

class ScreenReader : public WindowTest {
 protected:
  /// The rows' names of the default mappings.
  const std::vector<std::string> rows{"A: SPACE",         "B: ESC",
                                      "X: ENTER",         "Y: TAB",
                                      "L1 (LB): ---",     "R1 (RB): ---",
                                      "L2 (LT): ---",     "R2 (RT): ---",
                                      "LEFT_STICK: ---",  "RIGHT_STICK: ---",
                                      "D-PAD_UP: UP",     "D-PAD_DOWN: DOWN",
                                      "D-PAD_LEFT: LEFT", "D-PAD_RIGHT: RIGHT",
                                      "MENU: ---",        "OPTIONS: ---"};

  std::string storedMappings() const {
    std::stringstream text;
    text << std::ifstream(session.settings() / "vantorel" / "settings.json").rdbuf();
    const std::string start = "\"gamepad_keyboard_mappings\": \"";
    const std::size_t from = text.str().find(start) + start.size();
    const std::string base64 = text.str().substr(from, text.str().find('"', from) - from);
    return QByteArray::fromBase64(QByteArray::fromStdString(base64)).toStdString();
  }
};

TEST_F(ScreenReader, FindsEveryControlByItsNameAndRole) {
  start();
  std::vector<std::string> steps{"see push button: Language: English", "off check box: ACTIVE_MAPPING",
                                 "see push button: REFRESH_SYSTEM",    "off check box: JOYSTICK_CONTROL",
                                 "off check box: MENU_BAR_MODE",       "see push button: START_PROBE",
                                 "see push button: DOWNLOAD_DRIVER",   "miss push button: FIX"};
  for (const std::string& row : rows) steps.push_back("see push button: " + row);
  readScreen(steps);
}

TEST_F(ScreenReader, FlipsTheMappingSwitch) {
  start();
  readScreen({"press check box: ACTIVE_MAPPING", "on check box: ACTIVE_MAPPING"});
  EXPECT_EQ(outputCount(mappingOn), 1U);
  readScreen({"press check box: ACTIVE_MAPPING", "off check box: ACTIVE_MAPPING"});
  EXPECT_EQ(outputCount(mappingOff), 1U);
}

TEST_F(ScreenReader, FindsTheSlidersOnceTheJoystickIsOn) {
  start();
  readScreen({"miss slider: MOUSE", "press check box: JOYSTICK_CONTROL", "on check box: JOYSTICK_CONTROL",
              "see slider: MOUSE", "see slider: SCROLL", "see slider: DEADZONE"});
}

TEST_F(ScreenReader, ChangesAMappingFromEndToEnd) {
  start();
  EXPECT_THAT(storedMappings(), testing::Not(HasSubstr("\"k\"")));
  readScreen({"press push button: A: SPACE", "see dialog: SELECT_KEY::A", "focus push button: SPACE",
              "press push button: K", "miss dialog: SELECT_KEY::A", "see push button: A: K",
              "miss push button: A: SPACE"});
  EXPECT_THAT(storedMappings(), HasSubstr("\"k\""));
}

TEST_F(ScreenReader, MapsAnUnmappedButton) {
  start();
  readScreen({"press push button: OPTIONS: ---", "see dialog: SELECT_KEY::OPTIONS", "press push button: F12",
              "see push button: OPTIONS: F12"});
  EXPECT_THAT(storedMappings(), HasSubstr("\"f12\""));
}

TEST_F(ScreenReader, ReadsTheOtherLanguageOnceItIsChosen) {
  start();
  readScreen({"press push button: Language: English", "see menu item: English", "press menu item: 简体中文",
              "miss menu item: 简体中文", "see push button: 语言: 简体中文", "see check box: 启用映射",
              "see push button: 刷新系统", "see check box: 摇杆控制", "see check box: 菜单栏模式",
              "see push button: 开始检测", "see push button: 下载驱动", "see push button: A: 空格",
              "see push button: 选项键: ---", "miss push button: A: SPACE", "press push button: A: 空格",
              "see dialog: 选择按键::A", "press push button: 回车", "see push button: A: 回车"});
  EXPECT_THAT(storedMappings(), HasSubstr("\"returnKey\""));
}

}  // namespace
}  // namespace vantorel::test
