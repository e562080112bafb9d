#include "EmbeddedPlatform.h"

#include <gmock/gmock.h>

#include "EmbeddedRecord.h"

namespace vantorel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;
using namespace std::chrono_literals;

class EmbeddedPlatformTest : public testing::Test {
 protected:
  EmbeddedRecord record;
  EmbeddedPlatform platform{record.sink()};
  Platform& ports = platform.ports();
};

// Output and permission.

TEST_F(EmbeddedPlatformTest, RecordsStandardOutput) {
  ports.standardOutput.writeLine("text");
  EXPECT_THAT(record.timedLines(), ElementsAre("    0.000  | text"));
}

TEST_F(EmbeddedPlatformTest, GrantsThePermissionAtFirst) {
  EXPECT_TRUE(ports.accessibility.isTrusted());
  EXPECT_TRUE(ports.accessibility.isTrustedWithPrompt());
  EXPECT_THAT(record.lines(), IsEmpty());
}

TEST_F(EmbeddedPlatformTest, PromptsOnlyWhenAskedToAndDenied) {
  platform.accessibility.setGranted(false);
  EXPECT_FALSE(ports.accessibility.isTrusted());
  EXPECT_THAT(record.lines(), IsEmpty());
  EXPECT_FALSE(ports.accessibility.isTrustedWithPrompt());
  EXPECT_THAT(record.lines(), ElementsAre("prompt"));
}

// Events.

TEST_F(EmbeddedPlatformTest, RecordsPostedEvents) {
  EventPoster& poster = ports.eventPoster;
  poster.post(*poster.makeKeyboardEvent(53, true));
  poster.post(*poster.makeKeyboardEvent(53, false));
  poster.post(*poster.makeMouseEvent(MouseEventType::moved, {507.5, -0.25}));
  poster.post(*poster.makeMouseEvent(MouseEventType::leftDown, {100000, 0.00001}));
  poster.post(*poster.makeMouseEvent(MouseEventType::leftUp, {-0.0, 1}));
  auto scroll = *poster.makeScrollEvent(3, -2);
  poster.post(scroll);
  scroll.isContinuous = true;
  scroll.pointDeltaAxis1 = 4;
  scroll.pointDeltaAxis2 = -5;
  poster.post(scroll);
  EXPECT_THAT(record.lines(),
              ElementsAre("key down 53", "key up 53", "mouse move 507.5 -0.25", "mouse down 100000 0.00001",
                          "mouse up 0 1", "scroll 3 -2 continuous=0 delta=0,0",
                          "scroll 3 -2 continuous=1 delta=4,-5"));
}

TEST_F(EmbeddedPlatformTest, MovesTheCursorWithAMoveAlone) {
  EventPoster& poster = ports.eventPoster;
  EXPECT_THAT(poster.cursorLocation(), Optional(Point{500, 400}));
  poster.post(*poster.makeMouseEvent(MouseEventType::leftDown, {1, 1}));
  poster.post(*poster.makeMouseEvent(MouseEventType::leftUp, {2, 2}));
  EXPECT_THAT(poster.cursorLocation(), Optional(Point{500, 400}));
  poster.post(*poster.makeMouseEvent(MouseEventType::moved, {-7, 1e6}));
  EXPECT_THAT(poster.cursorLocation(), Optional(Point{-7, 1e6}));
  platform.eventPoster.setCursor({3, 4});
  EXPECT_THAT(poster.cursorLocation(), Optional(Point{3, 4}));
}

TEST_F(EmbeddedPlatformTest, FailsToMakeWhatHasAFault) {
  EventPoster& poster = ports.eventPoster;
  const auto canMake = [&] {
    return std::vector<bool>{poster.makeKeyboardEvent(1, true).has_value(),
                             poster.makeKeyboardEvent(1, false).has_value(),
                             poster.cursorLocation().has_value(),
                             poster.makeMouseEvent(MouseEventType::moved, {}).has_value(),
                             poster.makeMouseEvent(MouseEventType::leftDown, {}).has_value(),
                             poster.makeMouseEvent(MouseEventType::leftUp, {}).has_value(),
                             poster.makeScrollEvent(0, 0).has_value(),
                             ports.statusBar.makeStatusItem() != nullptr};
  };
  const std::vector<bool> everything(8, true);
  EXPECT_EQ(canMake(), everything);
  constexpr std::array faults{Fault::keyDown,   Fault::keyUp,   Fault::cursor, Fault::mouseMove,
                              Fault::mouseDown, Fault::mouseUp, Fault::scroll, Fault::statusItem};
  for (std::size_t index = 0; index < faults.size(); ++index) {
    std::vector<bool> allButOne = everything;
    allButOne[index] = false;
    platform.faults.set(faults.at(index), true);
    EXPECT_EQ(canMake(), allButOne) << "fault " << index;
    platform.faults.set(faults.at(index), false);
  }
  EXPECT_EQ(canMake(), everything);
}

// Settings, files and the desktop.

TEST_F(EmbeddedPlatformTest, KeepsDataAndTextsApart) {
  platform.userDefaults.prepareData("bytes", "[]");
  platform.userDefaults.prepareString("text", "EN");
  EXPECT_THAT(ports.userDefaults.data("bytes"), Optional(std::string("[]")));
  EXPECT_EQ(ports.userDefaults.string("bytes"), std::nullopt);
  EXPECT_THAT(ports.userDefaults.string("text"), Optional(std::string("EN")));
  EXPECT_EQ(ports.userDefaults.data("text"), std::nullopt);
  EXPECT_EQ(ports.userDefaults.data("nothing"), std::nullopt);
  EXPECT_THAT(record.lines(), IsEmpty());
}

TEST_F(EmbeddedPlatformTest, RecordsWhatTheProgramStores) {
  ports.userDefaults.setData("key", "[1]");
  ports.userDefaults.setString("key", "text");
  EXPECT_EQ(ports.userDefaults.data("key"), std::nullopt);
  EXPECT_THAT(ports.userDefaults.string("key"), Optional(std::string("text")));
  EXPECT_THAT(record.lines(), ElementsAre("defaults key data [1]", "defaults key string text"));
}

TEST_F(EmbeddedPlatformTest, HasTheFilesThatItWasTold) {
  platform.fileManager.addFile("/a b");
  EXPECT_TRUE(ports.fileManager.fileExists("/a b"));
  EXPECT_FALSE(ports.fileManager.fileExists("/a"));
}

TEST_F(EmbeddedPlatformTest, RecordsWhatIsAskedOfTheDesktop) {
  ports.application.setActivationPolicy(ActivationPolicy::accessory);
  ports.application.setActivationPolicy(ActivationPolicy::regular);
  ports.workspace.open("https://example.org/");
  EXPECT_FALSE(platform.application.takeTermination());
  ports.application.terminate();
  EXPECT_TRUE(platform.application.takeTermination());
  EXPECT_FALSE(platform.application.takeTermination());
  EXPECT_THAT(record.lines(),
              ElementsAre("policy accessory", "policy regular", "open https://example.org/", "terminate"));
}

// Hot keys.

class EmbeddedHotKeysTest : public EmbeddedPlatformTest {
 protected:
  static constexpr HotKey hotKey{0x56544B59, 1, 46, 768};

  int presses = 0;
  std::function<void()> counting = [this] { ++presses; };
};

TEST_F(EmbeddedHotKeysTest, RegistersACombinationOnceUntilItIsGivenBack) {
  auto first = ports.hotKeys.registerHotKey(hotKey);
  EXPECT_NE(first.reference, nullptr);
  const auto second = ports.hotKeys.registerHotKey({0x61626364, 2, 46, 768});
  EXPECT_EQ(second.reference, nullptr);
  EXPECT_EQ(second.status, -9878);
  const auto other = ports.hotKeys.registerHotKey({0x56544B59, 2, 46, 256});
  EXPECT_EQ(other.status, 0);
  first.reference.reset();
  EXPECT_EQ(ports.hotKeys.registerHotKey(hotKey).status, 0);
  EXPECT_THAT(record.lines(),
              ElementsAre("hotkey register VTKY 1 46 768 -> 0", "hotkey register abcd 2 46 768 -> -9878",
                          "hotkey register VTKY 2 46 256 -> 0", "hotkey register VTKY 1 46 768 -> 0"));
}

TEST_F(EmbeddedHotKeysTest, AnswersTheStatusThatItWasTold) {
  platform.hotKeys.setRegistrationStatus(-50);
  const auto refused = ports.hotKeys.registerHotKey(hotKey);
  EXPECT_EQ(refused.status, -50);
  EXPECT_EQ(refused.reference, nullptr);
  platform.hotKeys.setRegistrationStatus(0);
  EXPECT_EQ(ports.hotKeys.registerHotKey(hotKey).status, 0);
}

TEST_F(EmbeddedHotKeysTest, CallsTheHandlerOnTheMainQueueOnlyWhileACombinationIsRegistered) {
  platform.hotKeys.press();
  platform.time.settle();
  ports.hotKeys.installHandler(counting);
  platform.hotKeys.press();
  platform.time.settle();
  EXPECT_EQ(presses, 0);
  auto registration = ports.hotKeys.registerHotKey(hotKey);
  platform.hotKeys.press();
  EXPECT_EQ(presses, 0);
  platform.time.settle();
  EXPECT_EQ(presses, 1);
  platform.hotKeys.press();
  registration.reference.reset();
  platform.time.settle();
  EXPECT_EQ(presses, 1);
}

// The status bar.

class EmbeddedStatusBarTest : public EmbeddedPlatformTest {
 protected:
  std::string chosen;

  Menu menu() {
    return {{"State", false, "", [this] { chosen = "state"; }},
            {},
            {"Toggle", true, "t", [this] { chosen = "toggle"; }},
            {"Plain", true, "", nullptr},
            {"Off", false, "q", nullptr}};
  }
};

TEST_F(EmbeddedStatusBarTest, RecordsItemsAndMenus) {
  EXPECT_TRUE(ports.statusBar.isPresent());
  auto item = ports.statusBar.makeStatusItem();
  item->setTemplateIcon("gamecontroller.fill", "Vantorel");
  item->setMenu(menu());
  item.reset();
  EXPECT_THAT(
      record.lines(),
      ElementsAre("status item created", "menu State (disabled) | -- | Toggle ⌘T | Plain | Off (disabled) ⌘Q",
                  "status item removed"));
}

TEST_F(EmbeddedStatusBarTest, ChoosesEnabledItemsByTheirTitle) {
  EXPECT_FALSE(platform.statusBar.choose("Toggle"));
  auto item = ports.statusBar.makeStatusItem();
  item->setMenu(menu());
  EXPECT_TRUE(platform.statusBar.choose("Toggle"));
  EXPECT_EQ(chosen, "toggle");
  EXPECT_TRUE(platform.statusBar.choose("Plain"));
  EXPECT_FALSE(platform.statusBar.choose("State"));
  EXPECT_FALSE(platform.statusBar.choose("Off"));
  EXPECT_FALSE(platform.statusBar.choose(""));
  EXPECT_FALSE(platform.statusBar.choose("Other"));
  EXPECT_EQ(chosen, "toggle");
  item.reset();
  EXPECT_FALSE(platform.statusBar.choose("Toggle"));
}

TEST_F(EmbeddedStatusBarTest, LetsAnActionReplaceItsMenu) {
  auto item = ports.statusBar.makeStatusItem();
  const auto text = std::make_shared<std::string>("replaced");
  item->setMenu({{"Item", true, "", [&item, text, this] {
                    item->setMenu({});
                    chosen = *text;
                  }}});
  EXPECT_TRUE(platform.statusBar.choose("Item"));
  EXPECT_EQ(chosen, "replaced");
}

TEST_F(EmbeddedStatusBarTest, RemovesTheItemsOfAProgramThatEndsSilently) {
  auto item = ports.statusBar.makeStatusItem();
  item->setMenu(menu());
  platform.statusBar.endProgram();
  EXPECT_FALSE(platform.statusBar.choose("Toggle"));
  record.clear();
  item.reset();
  EXPECT_THAT(record.lines(), IsEmpty());
  ports.statusBar.makeStatusItem().reset();
  EXPECT_THAT(record.lines(), ElementsAre("status item created", "status item removed"));
}

}  // namespace
}  // namespace vantorel
