#include "MappingSwitchPanel.h"

#include <gtest/gtest.h>

#include <QAccessible>

#include "KeyButton.h"
#include "OpenWindow.h"

namespace vantorel {
namespace {

constexpr const char* escapeDown = "key down 53";

class MappingSwitchPanelTest : public testing::Test {
 protected:
  MappingSwitchPanelTest() { host.activate(); }

  QCheckBox& activeMapping() { return *host.control<QCheckBox>("ACTIVE_MAPPING"); }
  void pressB() { host.press(*pad, GamepadButton::buttonB); }

  OpenWindow host;
  std::shared_ptr<EmbeddedController> pad = host.plug("Pad", "Gamepad");
};

TEST_F(MappingSwitchPanelTest, StartsWithMappingOff) {
  EXPECT_FALSE(activeMapping().isChecked());
  pressB();
  EXPECT_FALSE(host.recorded(escapeDown));
}

TEST_F(MappingSwitchPanelTest, SwitchesMappingOnAndOffByMouse) {
  host.click("ACTIVE_MAPPING");
  EXPECT_TRUE(host.state.isEnabled);
  EXPECT_TRUE(host.recorded("🔄 已更新 8 个按键映射"));
  pressB();
  const int presses = host.timesRecorded(escapeDown);
  EXPECT_GT(presses, 0);
  host.click("ACTIVE_MAPPING");
  EXPECT_FALSE(host.state.isEnabled);
  EXPECT_TRUE(host.recorded("🔄 已清空按键映射"));
  pressB();
  EXPECT_EQ(host.timesRecorded(escapeDown), presses);
}

TEST_F(MappingSwitchPanelTest, SwitchesMappingByKeyboard) {
  activeMapping().setFocus();
  host.key(Qt::Key_Space);
  EXPECT_TRUE(host.state.isEnabled);
  host.key(Qt::Key_Space);
  EXPECT_FALSE(host.state.isEnabled);
}

TEST_F(MappingSwitchPanelTest, FollowsTheHotKeyRightAfterTheStart) {
  host.platform.hotKeys.press();
  host.settle();
  EXPECT_TRUE(activeMapping().isChecked());
  EXPECT_EQ(host.timesRecorded("🔄 已更新 8 个按键映射"), 1) << "the same as one click";
  pressB();
  EXPECT_TRUE(host.recorded(escapeDown));
}

TEST_F(MappingSwitchPanelTest, FollowsTheStatusMenuAndUpdatesItsTexts) {
  host.click("MENU_BAR_MODE");
  EXPECT_TRUE(host.platform.statusBar.choose("Enable Mapping"));
  host.settle();
  EXPECT_TRUE(activeMapping().isChecked());
  EXPECT_TRUE(host.transcript.back().find("✓ Mapping Active (disabled)") != std::string::npos);
  host.platform.hotKeys.press();
  host.settle();
  EXPECT_FALSE(activeMapping().isChecked());
  EXPECT_TRUE(host.transcript.back().find("✗ Mapping Inactive (disabled)") != std::string::npos);
}

TEST_F(MappingSwitchPanelTest, AsksForThePermissionWhenMappingIsSwitchedOn) {
  host.platform.accessibility.setGranted(false);
  host.click("ACTIVE_MAPPING");
  EXPECT_EQ(host.timesRecorded("prompt"), 1);
  pressB();
  EXPECT_TRUE(host.recorded("❌ 权限状态: 未授权，无法发送按键")) << "the table is filled all the same";
  EXPECT_FALSE(host.recorded(escapeDown));
}

TEST_F(MappingSwitchPanelTest, HandsOverAListThatWasEditedWhileItWasOff) {
  host.state.openKeyPicker(GamepadButton::buttonB);
  host.settle();
  host.click("TAB");
  EXPECT_FALSE(host.state.isEnabled);
  host.click("ACTIVE_MAPPING");
  pressB();
  EXPECT_FALSE(host.recorded(escapeDown));
  EXPECT_TRUE(host.recorded("key down 48"));
}

TEST_F(MappingSwitchPanelTest, LooksForThePermissionAgain) {
  host.platform.accessibility.setGranted(false);
  host.click("REFRESH_SYSTEM");
  EXPECT_TRUE(host.recorded("🔐 辅助功能权限: ❌ 未授权"));
  EXPECT_EQ(host.timesRecorded("prompt"), 0);
}

TEST_F(MappingSwitchPanelTest, IsACheckBoxWithANameInTheCurrentLanguage) {
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&activeMapping())->role(), QAccessible::CheckBox);
  host.state.chooseLanguage(AppLanguage::chinese);
  host.settle();
  EXPECT_TRUE(host.shows("启用映射"));
  EXPECT_TRUE(host.shows("刷新系统"));
  EXPECT_EQ(host.control<QCheckBox>("启用映射")->text(), "ACTIVE_MAPPING");
}

}  // namespace
}  // namespace vantorel
