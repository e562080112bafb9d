#include "MenuBarManager.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Machine.h"

namespace vantorel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string inactiveMenu =
    "menu ✗ Mapping Inactive (disabled) | -- | Enable Mapping ⌘T | -- | Show Window ⌘S | -- | Quit ⌘Q";
const std::string activeMenu =
    "menu ✓ Mapping Active (disabled) | -- | Disable Mapping ⌘T | -- | Show Window ⌘S | -- | Quit ⌘Q";

class MenuBar : public ::testing::Test {
 protected:
  MenuBarActions actions(const std::string& name) {
    return {[this, name] { ran.push_back(name + " toggle"); },
            [this, name] { ran.push_back(name + " show"); }, [this, name] { ran.push_back(name + " quit"); }};
  }

  Machine machine;
  MenuBarActionHandler handler;
  MenuBarManager manager{machine.platform.statusBar, machine.platform.application, handler};
  std::vector<std::string> ran;
};

TEST_F(MenuBar, ShowsAnItemWithItsSevenEntries) {
  manager.setupMenuBar(false, actions("first"));
  EXPECT_THAT(machine.take(), ElementsAre("status item created", inactiveMenu));
}

TEST_F(MenuBar, KeepsTheItemAndReplacesItsMenu) {
  manager.setupMenuBar(false, actions("first"));
  machine.take();
  manager.setupMenuBar(true, actions("second"));
  EXPECT_THAT(machine.take(), ElementsAre(activeMenu));
  EXPECT_TRUE(machine.platform.statusBar.choose("Disable Mapping"));
  EXPECT_TRUE(machine.platform.statusBar.choose("Show Window"));
  EXPECT_TRUE(machine.platform.statusBar.choose("Quit"));
  EXPECT_THAT(ran, ElementsAre("second toggle", "second show", "second quit"));
}

TEST_F(MenuBar, ItsStatusLineCannotBeChosen) {
  manager.setupMenuBar(true, actions("first"));
  EXPECT_FALSE(machine.platform.statusBar.choose("✓ Mapping Active"));
}

TEST_F(MenuBar, RemovingTheItemTwiceDoesItOnce) {
  manager.setupMenuBar(false, actions("first"));
  machine.take();
  manager.removeMenuBar();
  manager.removeMenuBar();
  EXPECT_THAT(machine.take(), ElementsAre("status item removed"));
}

TEST_F(MenuBar, MakesANewItemAfterItWasRemoved) {
  manager.setupMenuBar(false, actions("first"));
  manager.removeMenuBar();
  machine.take();
  manager.setupMenuBar(false, actions("first"));
  EXPECT_THAT(machine.take(), ElementsAre("status item created", inactiveMenu));
}

TEST_F(MenuBar, KeepsTheActionsWhenNoItemCanBeMade) {
  machine.platform.faults.set(Fault::statusItem, true);
  manager.setupMenuBar(false, actions("first"));
  EXPECT_THAT(machine.take(), IsEmpty());
  handler.toggleMapping();
  EXPECT_THAT(ran, ElementsAre("first toggle"));
}

TEST_F(MenuBar, TriesAgainToMakeTheItem) {
  machine.platform.faults.set(Fault::statusItem, true);
  manager.setupMenuBar(false, actions("first"));
  machine.platform.faults.set(Fault::statusItem, false);
  manager.setupMenuBar(true, actions("first"));
  EXPECT_THAT(machine.take(), ElementsAre("status item created", activeMenu));
}

TEST_F(MenuBar, HidingIsTheModeAndShowingLeavesIt) {
  manager.hideFromDock();
  EXPECT_TRUE(manager.isMenuBarMode);
  manager.showInDock();
  EXPECT_FALSE(manager.isMenuBarMode);
  EXPECT_THAT(machine.take(), ElementsAre("policy accessory", "policy regular"));
}

TEST_F(MenuBar, AHandlerWithoutActionsDoesNothing) {
  handler.toggleMapping();
  handler.showWindow();
  handler.quit();
  EXPECT_THAT(ran, IsEmpty());
}

TEST_F(MenuBar, AnActionMayReplaceTheMenuItCameFrom) {
  manager.setupMenuBar(false, {[this] { manager.setupMenuBar(true, actions("second")); }, nullptr, nullptr});
  machine.take();
  EXPECT_TRUE(machine.platform.statusBar.choose("Enable Mapping"));
  EXPECT_THAT(machine.take(), ElementsAre(activeMenu));
}

}  // namespace
}  // namespace vantorel::test
