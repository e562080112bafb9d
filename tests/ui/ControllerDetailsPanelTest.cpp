#include "ControllerDetailsPanel.h"

#include <gtest/gtest.h>

#include "OpenWindow.h"

namespace vantorel {
namespace {

class ControllerDetailsPanelTest : public testing::Test {
 protected:
  QStringList texts() { return OpenWindow::labels(host.panel(5)); }

  OpenWindow host;
};

TEST_F(ControllerDetailsPanelTest, ShowsWhatIsPublishedBeforeAControllerIsThere) {
  EXPECT_EQ(texts(), QStringList({"DEVICE_SPECS", "EXTENDED: NO", "360_DRIVER: NO", "LAST_KEY: ---",
                                  "FAMILY: Unknown", "TYPE: 未知"}));
}

TEST_F(ControllerDetailsPanelTest, ShowsTheFactsOfTheConnectedController) {
  host.plug("Xbox Wireless Controller", "Xbox One");
  EXPECT_TRUE(texts().contains("TYPE: Xbox One"));
  EXPECT_TRUE(texts().contains("EXTENDED: YES"));
  EXPECT_TRUE(texts().contains("FAMILY: Xbox"));
}

TEST_F(ControllerDetailsPanelTest, ShowsTheLatestKey) {
  const auto pad = host.plug("Pad", "Gamepad");
  host.state.setEnabled(true);
  host.press(*pad, GamepadButton::buttonB);
  EXPECT_TRUE(texts().contains("LAST_KEY: ESC"));
}

TEST_F(ControllerDetailsPanelTest, SpeaksChinese) {
  host.plug("Xbox Wireless Controller", "Xbox One");
  host.state.chooseLanguage(AppLanguage::chinese);
  host.settle();
  EXPECT_EQ(texts(), QStringList({"DEVICE_SPECS", "扩展手柄: 是", "360驱动: 否", "最近按键: ---",
                                  "系列: Xbox", "类型: Xbox One"}));
}

TEST_F(ControllerDetailsPanelTest, ProbesForTheFirstButton) {
  const auto pad = host.plug("Pad", "Gamepad");
  host.click("START_PROBE");
  EXPECT_TRUE(host.recorded("🎯 开始实时监测模式..."));
  host.press(*pad, GamepadButton::buttonX);
  EXPECT_TRUE(host.recorded("🔴 检测到X按钮按下！"));
}

}  // namespace
}  // namespace vantorel
