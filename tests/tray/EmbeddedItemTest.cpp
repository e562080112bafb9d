#include <algorithm>

#include "TrayTest.h"

namespace vantorel::test {
namespace {

using EmbeddedItem = TrayTest;

TEST_F(EmbeddedItem, DocksInTheTrayAndIsSeen) {
  startTray();
  startProgram();
  tell("item");
  ASSERT_TRUE(eventually([&] { return itemIsDocked(); }));
  const xcb_window_t icon = screen.dockedIcons().front();
  EXPECT_TRUE(eventually([&] {
    const QImage picture = screen.picture(icon);
    int darkest = 255;
    int lightest = 0;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        darkest = std::min(darkest, qGray(picture.pixel(x, y)));
        lightest = std::max(lightest, qGray(picture.pixel(x, y)));
      }
    }
    return lightest - darkest > 100;
  }));
}

TEST_F(EmbeddedItem, OpensTheMenuOnAClickAndRunsTheEntryChosenByKeyboard) {
  startTray();
  startProgram();
  tell("item");
  ASSERT_TRUE(eventually([&] { return itemIsDocked(); }));
  screen.click(screen.dockedIcons().front());
  ASSERT_TRUE(eventually([&] { return screen.menuIsOpen(); }));
  screen.press({XK_Down});
  screen.press({XK_Return});
  EXPECT_TRUE(eventuallySays("chosen Enable Mapping"));
  EXPECT_TRUE(eventually([&] { return !screen.menuIsOpen(); }));
}

TEST_F(EmbeddedItem, TakesKeyEquivalentsWhileTheMenuIsOpen) {
  startTray();
  startProgram();
  tell("item");
  ASSERT_TRUE(eventually([&] { return itemIsDocked(); }));
  screen.click(screen.dockedIcons().front());
  ASSERT_TRUE(eventually([&] { return screen.menuIsOpen(); }));
  screen.press({XK_Super_L, XK_s});
  EXPECT_TRUE(eventuallySays("chosen Show Window"));
  EXPECT_TRUE(eventually([&] { return !screen.menuIsOpen(); }));
}

TEST_F(EmbeddedItem, ShowsTheReplacedMenu) {
  startTray();
  startProgram();
  tell("item");
  tell("menu on");
  ASSERT_TRUE(eventually([&] { return itemIsDocked(); }));
  screen.click(screen.dockedIcons().front());
  ASSERT_TRUE(eventually([&] { return screen.menuIsOpen(); }));
  screen.press({XK_Super_L, XK_t});
  EXPECT_TRUE(eventuallySays("chosen Disable Mapping"));
}

TEST_F(EmbeddedItem, ClosesTheMenuOnAClickElsewhere) {
  startTray();
  startProgram();
  tell("show elsewhere");
  tell("item");
  ASSERT_TRUE(
      eventually([&] { return itemIsDocked() && screen.isVisible(screen.windowTitled("elsewhere")); }));
  screen.click(screen.dockedIcons().front());
  ASSERT_TRUE(eventually([&] { return screen.menuIsOpen(); }));
  screen.click(screen.windowTitled("elsewhere"));
  EXPECT_TRUE(eventually([&] { return !screen.menuIsOpen(); }));
  EXPECT_FALSE(hasSaid("chosen"));
}

TEST_F(EmbeddedItem, GoesWhenItIsDestroyed) {
  startTray();
  startProgram();
  tell("item");
  ASSERT_TRUE(eventually([&] { return itemIsDocked(); }));
  tell("drop");
  EXPECT_TRUE(eventually([&] { return screen.dockedIcons().empty(); }));
}

TEST_F(EmbeddedItem, ComesWithATrayThatAppearsLaterAndComesBackWithTheNext) {
  startProgram();
  tell("item");
  startTray();
  ASSERT_TRUE(eventually([&] { return itemIsDocked(); }));
  stopTray();
  ASSERT_TRUE(eventually([&] { return screen.dockedIcons().empty(); }));
  startTray();
  EXPECT_TRUE(eventually([&] { return itemIsDocked(); }));
  EXPECT_EQ(program->errorOutput(), "");
}

TEST_F(EmbeddedItem, NeedsNoSessionBus) {
  startTray();
  startProgram({"DBUS_SESSION_BUS_ADDRESS=unix:path=/nowhere"});
  tell("item");
  EXPECT_TRUE(eventually([&] { return itemIsDocked(); }));
}

TEST_F(EmbeddedItem, MovesToAHostOfNotifierItemsAndBack) {
  startTray();
  startProgram();
  tell("item");
  ASSERT_TRUE(eventually([&] { return itemIsDocked(); }));
  startHost();
  ASSERT_TRUE(eventually([&] { return itemIsHosted() && screen.dockedIcons().empty(); }));
  host->choose("Show Window");
  EXPECT_TRUE(eventuallySays("chosen Show Window"));
  stopHost();
  EXPECT_TRUE(eventually([&] { return itemIsDocked(); }));
  startHost();
  EXPECT_TRUE(eventually([&] { return itemIsHosted() && screen.dockedIcons().empty(); }));
}

}  // namespace
}  // namespace vantorel::test
