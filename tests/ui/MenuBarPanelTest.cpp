#include "MenuBarPanel.h"

#include <gtest/gtest.h>

#include "OpenWindow.h"

namespace vantorel {
namespace {

class MenuBarPanelTest : public testing::Test {
 protected:
  static QStringList hint(OpenWindow& host) { return OpenWindow::labels(host.panel(4)); }
  static bool isChecked(OpenWindow& host) { return host.control<QCheckBox>("MENU_BAR_MODE")->isChecked(); }
};

TEST_F(MenuBarPanelTest, IsOffAtTheStart) {
  OpenWindow host;
  EXPECT_FALSE(isChecked(host));
  EXPECT_EQ(hint(host), QStringList());
  EXPECT_FALSE(host.recorded("status item created"));
}

TEST_F(MenuBarPanelTest, EntersAndLeavesMenuBarMode) {
  OpenWindow host;
  host.click("MENU_BAR_MODE");
  EXPECT_TRUE(host.recorded("status item created"));
  EXPECT_TRUE(host.recorded("policy accessory"));
  EXPECT_EQ(hint(host), QStringList("App is hidden in menu bar"));
  host.click("MENU_BAR_MODE");
  EXPECT_TRUE(host.recorded("status item removed"));
  EXPECT_TRUE(host.recorded("policy regular"));
  EXPECT_EQ(hint(host), QStringList());
}

TEST_F(MenuBarPanelTest, MakesANewStatusItemEveryTime) {
  OpenWindow host;
  for (int click = 0; click < 3; ++click) host.click("MENU_BAR_MODE");
  EXPECT_EQ(host.timesRecorded("status item created"), 2);
  EXPECT_EQ(host.timesRecorded("status item removed"), 1);
}

TEST_F(MenuBarPanelTest, IsUncheckedByShowWindowInTheStatusMenu) {
  OpenWindow host;
  host.click("MENU_BAR_MODE");
  EXPECT_TRUE(host.platform.statusBar.choose("Show Window"));
  host.settle();
  EXPECT_FALSE(isChecked(host));
  EXPECT_EQ(hint(host), QStringList());
  EXPECT_TRUE(host.recorded("status item removed"));
}

TEST_F(MenuBarPanelTest, KeepsItsHintInEnglish) {
  OpenWindow host;
  host.click("MENU_BAR_MODE");
  host.state.chooseLanguage(AppLanguage::chinese);
  host.settle();
  EXPECT_TRUE(host.shows("菜单栏模式"));
  EXPECT_EQ(hint(host), QStringList("App is hidden in menu bar"));
}

TEST_F(MenuBarPanelTest, DrawsItsHintSmallAndGrey) {
  OpenWindow host;
  host.click("MENU_BAR_MODE");
  const auto* const label = dynamic_cast<WrappingLabel*>(host.panel(4).findChildren<QLabel*>().front());
  EXPECT_EQ(label->font().pixelSize(), 9);
  EXPECT_EQ(label->color(), AppTheme::secondaryText());
}

TEST_F(MenuBarPanelTest, SaysWhereTheWindowIsOnADesktopWithoutStatusBar) {
  AbsentStatusBar bar;
  OpenWindow host(&bar);
  host.click("MENU_BAR_MODE");
  EXPECT_EQ(hint(host), QStringList("No status bar on this desktop: the window stays in the task bar"));
  host.state.chooseLanguage(AppLanguage::chinese);
  host.settle();
  EXPECT_EQ(hint(host), QStringList("此桌面没有状态栏：窗口仍保留在任务栏中"));
}

TEST_F(MenuBarPanelTest, NoticesAStatusBarThatAppearsLater) {
  AbsentStatusBar bar;
  OpenWindow host(&bar);
  host.click("MENU_BAR_MODE");
  bar.present = true;
  host.settle();
  EXPECT_EQ(hint(host), QStringList("App is hidden in menu bar"));
}

}  // namespace
}  // namespace vantorel
