#include "TrayTest.h"

namespace vantorel::test {
namespace {

class ApplicationTest : public TrayTest {
 protected:
  xcb_window_t shownWindow(const std::string& title) {
    tell("show " + title);
    EXPECT_TRUE(eventually([&] { return screen.isVisible(screen.windowTitled(title)); }));
    return screen.windowTitled(title);
  }

  bool becomesListed(xcb_window_t window) {
    return eventually([&] { return !screen.skipsTaskBar(window) && !screen.skipsPager(window); });
  }

  bool becomesUnlisted(xcb_window_t window) {
    return eventually([&] { return screen.skipsTaskBar(window) && screen.skipsPager(window); });
  }

  void startWithBar() {
    startHost();
    startProgram();
    ASSERT_TRUE(eventually([&] { return barIsThere(); }));
  }
};

TEST_F(ApplicationTest, TheAccessoryPolicyTakesWindowsOutOfTheTaskBarAndTheRegularOnePutsThemBack) {
  startWithBar();
  const xcb_window_t first = shownWindow("first");
  const xcb_window_t second = shownWindow("second");
  EXPECT_FALSE(screen.skipsTaskBar(first));
  tell("policy accessory");
  EXPECT_TRUE(becomesUnlisted(first));
  EXPECT_TRUE(becomesUnlisted(second));
  tell("policy regular");
  EXPECT_TRUE(becomesListed(first));
  EXPECT_TRUE(becomesListed(second));
  EXPECT_TRUE(screen.isVisible(first));
}

TEST_F(ApplicationTest, AWindowShownUnderTheAccessoryPolicyIsNotListed) {
  startWithBar();
  tell("policy accessory");
  const xcb_window_t window = shownWindow("later");
  EXPECT_TRUE(screen.skipsTaskBar(window));
  EXPECT_TRUE(screen.skipsPager(window));
  tell("policy regular");
  EXPECT_TRUE(becomesListed(window));
}

TEST_F(ApplicationTest, AHiddenWindowFollowsThePolicyOfItsNextShowing) {
  startWithBar();
  const xcb_window_t window = shownWindow("again");
  tell("hide again");
  ASSERT_TRUE(eventually([&] { return !screen.isVisible(window); }));
  tell("policy accessory");
  EXPECT_EQ(shownWindow("again"), window);
  EXPECT_TRUE(becomesUnlisted(window));
  tell("hide again");
  ASSERT_TRUE(eventually([&] { return !screen.isVisible(window); }));
  tell("policy regular");
  EXPECT_EQ(shownWindow("again"), window);
  EXPECT_TRUE(becomesListed(window));
}

TEST_F(ApplicationTest, WithoutAStatusBarTheWindowStaysListedUntilOneComes) {
  startProgram();
  const xcb_window_t window = shownWindow("window");
  tell("policy accessory");
  const xcb_window_t later = shownWindow("later");
  EXPECT_FALSE(screen.skipsTaskBar(window));
  EXPECT_FALSE(screen.skipsTaskBar(later));
  startHost();
  EXPECT_TRUE(becomesUnlisted(window));
  EXPECT_TRUE(becomesUnlisted(later));
  stopHost();
  EXPECT_TRUE(becomesListed(window));
}

TEST_F(ApplicationTest, AnEmbeddingTrayIsAStatusBarToo) {
  startProgram();
  tell("policy accessory");
  const xcb_window_t window = shownWindow("window");
  EXPECT_FALSE(screen.skipsTaskBar(window));
  startTray();
  EXPECT_TRUE(becomesUnlisted(window));
}

TEST_F(ApplicationTest, TerminateEndsTheProgramAfterThePresentBlock) {
  startProgram();
  tell("show window");
  tell("terminate");
  EXPECT_EQ(program->waitForExit(), 0);
}

}  // namespace
}  // namespace vantorel::test
