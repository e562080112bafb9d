#include "PermissionPanel.h"

#include <gtest/gtest.h>

#include "OpenWindow.h"

namespace vantorel {
namespace {

class PermissionPanelTest : public testing::Test {
 protected:
  void setGranted(bool isGranted) {
    host.platform.accessibility.setGranted(isGranted);
    host.click("REFRESH_SYSTEM");
  }

  OpenWindow host;
};

TEST_F(PermissionPanelTest, SaysThatThePermissionIsGranted) {
  EXPECT_EQ(OpenWindow::labels(host.panel(1)), QStringList({"OS_ACCESSIBILITY", "GRANTED"}));
  EXPECT_FALSE(host.shows("FIX"));
}

TEST_F(PermissionPanelTest, OffersToFixAMissingPermission) {
  setGranted(false);
  EXPECT_EQ(OpenWindow::labels(host.panel(1)), QStringList("OS_ACCESSIBILITY"));
  host.click("FIX");
  EXPECT_TRUE(
      host.recorded("open x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility"));
}

TEST_F(PermissionPanelTest, NoticesAPermissionThatIsGrantedMeanwhile) {
  setGranted(false);
  ASSERT_TRUE(host.shows("FIX"));
  setGranted(true);
  EXPECT_FALSE(host.shows("FIX"));
  EXPECT_TRUE(host.shows("GRANTED"));
}

TEST_F(PermissionPanelTest, SpeaksChinese) {
  host.state.chooseLanguage(AppLanguage::chinese);
  host.settle();
  EXPECT_EQ(OpenWindow::labels(host.panel(1)), QStringList({"系统辅助功能", "已授权"}));
  host.platform.accessibility.setGranted(false);
  host.click("刷新系统");
  EXPECT_TRUE(host.shows("修复"));
}

}  // namespace
}  // namespace vantorel
