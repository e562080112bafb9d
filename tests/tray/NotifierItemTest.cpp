#include "TrayTest.h"

namespace vantorel::test {
namespace {

using testing::ElementsAre;

using NotifierItem = TrayTest;

int countOfPixels(const QImage& image, const QColor& colour) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) count += image.pixelColor(x, y) == colour ? 1 : 0;
  }
  return count;
}

TEST_F(NotifierItem, ShowsWithIconToolTipAndTitle) {
  startHost();
  startProgram();
  tell("item");
  ASSERT_TRUE(eventually([&] { return itemIsHosted(); }));
  EXPECT_EQ(host->toolTip(), "Vantorel");
  EXPECT_EQ(host->property("Title").toString(), "Vantorel");
  EXPECT_FALSE(host->icon(22).isNull());
}

TEST_F(NotifierItem, IsDarkOnLightAndLightOnDarkAndFollowsTheDesktop) {
  startHost();
  startProgram();
  tell("palette light");
  tell("item");
  ASSERT_TRUE(eventually([&] { return itemIsHosted(); }));
  EXPECT_GT(countOfPixels(host->icon(48), Qt::black), 300);
  EXPECT_EQ(countOfPixels(host->icon(48), Qt::white), 0);
  tell("palette dark");
  EXPECT_TRUE(eventually([&] { return countOfPixels(host->icon(48), Qt::white) > 300; }));
  EXPECT_EQ(countOfPixels(host->icon(48), Qt::black), 0);
}

TEST_F(NotifierItem, OffersTheMenuWithSeparatorsDisabledEntriesAndKeyEquivalents) {
  startHost();
  startProgram();
  tell("item");
  ASSERT_TRUE(eventually([&] { return itemIsHosted(); }));
  ASSERT_THAT(host->titles(),
              ElementsAre("✗ Mapping Inactive", "-", "Enable Mapping", "-", "Show Window", "-", "Quit"));
  const auto menu = host->menu();
  EXPECT_FALSE(menu[0].isEnabled);
  EXPECT_THAT(menu[0].shortcut, ElementsAre());
  EXPECT_TRUE(menu[2].isEnabled);
  EXPECT_THAT(menu[2].shortcut, ElementsAre("Super", "T"));
  EXPECT_THAT(menu[4].shortcut, ElementsAre("Super", "S"));
  EXPECT_THAT(menu[6].shortcut, ElementsAre("Super", "Q"));
}

TEST_F(NotifierItem, RunsTheChosenAction) {
  startHost();
  startProgram();
  tell("item");
  ASSERT_TRUE(eventually([&] { return itemIsHosted(); }));
  host->choose("Show Window");
  EXPECT_TRUE(eventuallySays("chosen Show Window"));
  EXPECT_FALSE(hasSaid("chosen Enable Mapping"));
}

TEST_F(NotifierItem, ReplacesTheWholeMenu) {
  startHost();
  startProgram();
  tell("item");
  ASSERT_TRUE(eventually([&] { return itemIsHosted(); }));
  ASSERT_EQ(host->titles().size(), 7U);
  tell("menu on");
  EXPECT_THAT(host->titles(),
              ElementsAre("✓ Mapping Active", "-", "Disable Mapping", "-", "Show Window", "-", "Quit"));
  EXPECT_EQ(host->itemCount(), 1U);
  host->choose("Disable Mapping");
  EXPECT_TRUE(eventuallySays("chosen Disable Mapping"));
}

TEST_F(NotifierItem, OpensTheMenuOnAPlainClickToo) {
  startHost();
  startProgram();
  tell("item");
  ASSERT_TRUE(eventually([&] { return itemIsHosted(); }));
  host->activate();
  ASSERT_TRUE(eventually([&] { return screen.menuIsOpen(); }));
  screen.press({XK_Down});
  screen.press({XK_Return});
  EXPECT_TRUE(eventuallySays("chosen Enable Mapping"));
}

TEST_F(NotifierItem, GoesWhenItIsDestroyedAndComesWhenItIsMadeAgain) {
  startHost();
  startProgram();
  tell("item");
  ASSERT_TRUE(eventually([&] { return itemIsHosted(); }));
  tell("drop");
  EXPECT_TRUE(eventually([&] { return host->itemCount() == 0; }));
  tell("item");
  EXPECT_TRUE(eventually([&] { return itemIsHosted(); }));
}

TEST_F(NotifierItem, ComesWhenTheHostAppearsLater) {
  startProgram();
  tell("item");
  startHost();
  ASSERT_TRUE(eventually([&] { return itemIsHosted(); }));
  host->choose("Quit");
  EXPECT_TRUE(eventuallySays("chosen Quit"));
}

TEST_F(NotifierItem, ComesWhenAHostRegistersAtTheRegistryLater) {
  startHost(StatusNotifierHost::Hosting::no);
  startProgram();
  tell("item");
  EXPECT_FALSE(barIsThere());
  EXPECT_EQ(host->itemCount(), 0U);
  host->setHosting(StatusNotifierHost::Hosting::yes);
  EXPECT_TRUE(eventually([&] { return itemIsHosted(); }));
  EXPECT_TRUE(barIsThere());
}

TEST_F(NotifierItem, ComesBackWithTheHost) {
  startHost();
  startProgram();
  tell("item");
  ASSERT_TRUE(eventually([&] { return itemIsHosted(); }));
  stopHost();
  ASSERT_TRUE(eventually([&] { return !barIsThere(); }));
  tell("menu on");
  startHost();
  ASSERT_TRUE(eventually([&] { return itemIsHosted(); }));
  EXPECT_EQ(host->titles().at(0), "✓ Mapping Active");
}

}  // namespace
}  // namespace vantorel::test
