// Menu-bar mode with the status bars that desktops have, and with none.

#include <algorithm>

#include "WindowTest.h"

namespace vantorel::test {
namespace {

using testing::ElementsAre;

class MenuBarMode : public WindowTest {
 protected:
  static constexpr const char* flipMode = "press check box: MENU_BAR_MODE";

  bool itemIsHosted() const { return host && host->itemCount() == 1; }
  bool itemIsDocked() const { return icons().size() == 1; }

  /// The program's icons in the tray: its windows are made to be embedded as well.
  std::vector<xcb_window_t> icons() const {
    const auto managed = windows.titled("Vantorel");
    auto found = screen.dockedIcons();
    std::erase_if(found, [&](xcb_window_t each) {
      return std::find(managed.begin(), managed.end(), each) != managed.end();
    });
    return found;
  }

  /// Starts the program beside a host of status items and enters the mode.
  void enterWithHost() {
    startHost();
    start();
    readScreen({flipMode});
    require("the item at the host", [&] { return itemIsHosted() && isUnlisted(); });
  }

  /// The same with a tray that embeds icons.
  void enterWithTray() {
    startTray();
    start();
    readScreen({flipMode});
    require("the icon in the tray", [&] { return itemIsDocked(); });
    require("the window out of the task bar", [&] { return isUnlisted(); });
  }

  /// Opens the menu of the icon in the tray and chooses its entry number `entry`; those that cannot be chosen
  /// do not count.
  void chooseInTray(int entry) {
    screen.click(icons().front());
    require("the menu", [&] { return screen.menuIsOpen(); });
    for (int i = 0; i < entry; ++i) screen.press({XK_Down});
    screen.press({XK_Return});
  }
  static constexpr int enableMapping = 1;
  static constexpr int showWindow = 2;
  static constexpr int quit = 3;

  void expectTheEnd() {
    ASSERT_TRUE(eventually([&] { return !program->isRunning(); }));
    EXPECT_EQ(program->waitForExit(), 0);
  }
};

TEST_F(MenuBarMode, TakesTheWindowOutOfTheTaskBarAndPutsItBack) {
  enterWithHost();
  EXPECT_TRUE(screen.isVisible(window()));
  readScreen({flipMode});
  EXPECT_TRUE(eventually([&] { return isListed() && host->itemCount() == 0; }));
  EXPECT_TRUE(screen.isVisible(window()));
}

TEST_F(MenuBarMode, WithoutAStatusBarTheWindowStaysInTheTaskBarUntilOneComes) {
  start();
  readScreen({flipMode});
  readScreen({"see label: No status bar on this desktop: the window stays in the task bar"});
  EXPECT_TRUE(isListed());
  startHost();
  EXPECT_TRUE(eventually([&] { return itemIsHosted() && isUnlisted(); }));
  readScreen({"see label: App is hidden in menu bar"});
}

TEST_F(MenuBarMode, TheHostReadsTheMenuAndSwitchesTheMapping) {
  enterWithHost();
  EXPECT_THAT(host->titles(),
              ElementsAre("✗ Mapping Inactive", "-", "Enable Mapping", "-", "Show Window", "-", "Quit"));
  host->choose("Enable Mapping");
  EXPECT_TRUE(eventuallySays(mappingOn));
  EXPECT_THAT(host->titles(),
              ElementsAre("✓ Mapping Active", "-", "Disable Mapping", "-", "Show Window", "-", "Quit"));
  host->choose("Disable Mapping");
  EXPECT_TRUE(eventuallySays(mappingOff));
}

TEST_F(MenuBarMode, TheHostShowsTheWindow) {
  enterWithHost();
  host->choose("Show Window");
  EXPECT_TRUE(eventually([&] { return isListed() && host->itemCount() == 0; }));
}

TEST_F(MenuBarMode, TheHostShowsAClosedWindow) {
  enterWithHost();
  closeWindow();
  host->choose("Show Window");
  EXPECT_TRUE(eventually([&] { return isInFront() && isListed() && host->itemCount() == 0; }));
}

TEST_F(MenuBarMode, TheHostEndsTheProgram) {
  enterWithHost();
  host->choose("Quit");
  expectTheEnd();
}

TEST_F(MenuBarMode, TheTraySwitchesTheMapping) {
  enterWithTray();
  chooseInTray(enableMapping);
  EXPECT_TRUE(eventuallySays(mappingOn));
  ASSERT_TRUE(eventually([&] { return !screen.menuIsOpen(); }));
  chooseInTray(enableMapping);  // which disables it now
  EXPECT_TRUE(eventuallySays(mappingOff));
}

TEST_F(MenuBarMode, TheTrayShowsTheWindow) {
  enterWithTray();
  chooseInTray(showWindow);
  EXPECT_TRUE(eventually([&] { return isListed() && icons().empty(); }));
}

TEST_F(MenuBarMode, TheTrayShowsAClosedWindow) {
  enterWithTray();
  closeWindow();
  chooseInTray(showWindow);
  EXPECT_TRUE(eventually([&] { return isInFront() && isListed() && icons().empty(); }));
}

TEST_F(MenuBarMode, TheTrayEndsTheProgram) {
  enterWithTray();
  chooseInTray(quit);
  expectTheEnd();
}

}  // namespace
}  // namespace vantorel::test
