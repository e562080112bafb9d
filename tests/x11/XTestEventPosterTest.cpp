#include "XTestEventPoster.h"

#include <gmock/gmock.h>

#include <cmath>
#include <csignal>
#include <thread>

#include "EventWindow.h"
#include "KeyboardKey.h"
#include "OtherClient.h"
#include "XServer.h"

namespace vantorel::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

constexpr xcb_keycode_t xEscape = 9;
constexpr xcb_keycode_t xA = 38;
constexpr xcb_keycode_t xF12 = 96;

/// A poster on one connection, a window that has the focus on a second one, and a third client.
class XTestEventPosterTest : public testing::Test {
 protected:
  void postKey(KeyboardKey key, bool isDown) {
    const auto event = poster.makeKeyboardEvent(keyCode(key), isDown);
    ASSERT_TRUE(event);
    poster.post(*event);
  }

  void postMouse(MouseEventType type, Point location) {
    const auto event = poster.makeMouseEvent(type, location);
    ASSERT_TRUE(event);
    poster.post(*event);
  }

  void scroll(std::int32_t wheel1, std::int32_t wheel2) {
    const auto event = poster.makeScrollEvent(wheel1, wheel2);
    ASSERT_TRUE(event);
    poster.post(*event);
  }

  std::vector<std::string> seen() {
    connection.sync();
    return window.takeEvents();
  }

  std::pair<int, int> pointer() {
    connection.sync();
    return other.pointer();
  }

  XServer server{{"-r"}};  // without auto-repeat, whatever time a key stays down
  XcbConnection connection{server.display()};
  EventWindow window{server.display()};
  OtherClient other{server.display()};
  XTestEventPoster poster{connection};
};

TEST_F(XTestEventPosterTest, SendsKeysToTheFocusedWindow) {
  postKey(KeyboardKey::escape, true);
  EXPECT_THAT(seen(), ElementsAre("key 9 down"));
  postKey(KeyboardKey::escape, false);
  EXPECT_THAT(seen(), ElementsAre("key 9 up"));
  postKey(KeyboardKey::a, true);
  postKey(KeyboardKey::a, false);
  EXPECT_THAT(seen(), ElementsAre("key 38 down", "key 38 up"));
}

TEST_F(XTestEventPosterTest, CanMakeEveryKeyOfAnOrdinaryKeymap) {
  for (const KeyboardKey key : allKeyboardKeys()) {
    EXPECT_TRUE(poster.makeKeyboardEvent(keyCode(key), true)) << rawValue(key);
  }
}

TEST_F(XTestEventPosterTest, CannotMakeAKeyThatTheKeymapLacks) {
  const std::uint16_t f12 = keyCode(KeyboardKey::f12);
  other.setSymbol(xF12, XCB_NO_SYMBOL);
  EXPECT_FALSE(poster.makeKeyboardEvent(f12, true));
  EXPECT_FALSE(poster.makeKeyboardEvent(f12, false));
  EXPECT_TRUE(poster.makeKeyboardEvent(keyCode(KeyboardKey::f11), true));
  other.setSymbol(xF12, 0xffc9);
  EXPECT_TRUE(poster.makeKeyboardEvent(f12, true));
  EXPECT_FALSE(poster.makeKeyboardEvent(10, true)) << "no button sends this key";
}

TEST_F(XTestEventPosterTest, MovesThePointerExactly) {
  postMouse(MouseEventType::moved, {640, 450});
  EXPECT_THAT(pointer(), Pair(640, 450));
  EXPECT_EQ(poster.cursorLocation(), (Point{640, 450}));
  postMouse(MouseEventType::moved, {655, 435});
  EXPECT_THAT(pointer(), Pair(655, 435));
}

TEST_F(XTestEventPosterTest, AddsUpFractionsOfMoves) {
  other.movePointer(100, 200);
  for (int tick = 0; tick < 10; ++tick) {
    const auto location = poster.cursorLocation();
    ASSERT_TRUE(location);
    postMouse(MouseEventType::moved, {location->x + 7.5, location->y - 0.25});
  }
  EXPECT_EQ(poster.cursorLocation(), (Point{175, 197.5}));
  EXPECT_THAT(pointer(), Pair(175, 198));
}

TEST_F(XTestEventPosterTest, ForgetsTheFractionWhenSomebodyElseMovesThePointer) {
  postMouse(MouseEventType::moved, {100.25, 200.25});
  EXPECT_EQ(poster.cursorLocation(), (Point{100.25, 200.25}));
  other.movePointer(300, 310);
  EXPECT_EQ(poster.cursorLocation(), (Point{300, 310}));
}

TEST_F(XTestEventPosterTest, IsConfinedToTheScreen) {
  postMouse(MouseEventType::moved, {-1e9, 100.25});
  EXPECT_THAT(pointer(), Pair(0, 100));
  EXPECT_EQ(poster.cursorLocation(), (Point{0, 100.25})) << "the other axis keeps its fraction";
  postMouse(MouseEventType::moved, {1e9, 5000});
  EXPECT_THAT(pointer(), Pair(1279, 899));
  EXPECT_EQ(poster.cursorLocation(), (Point{1279, 899}));
}

TEST_F(XTestEventPosterTest, CannotMoveToNowhere) {
  EXPECT_FALSE(poster.makeMouseEvent(MouseEventType::moved, {std::nan(""), 0}));
  EXPECT_FALSE(poster.makeMouseEvent(MouseEventType::moved, {0, HUGE_VAL}));
}

TEST_F(XTestEventPosterTest, ClicksTheLeftButtonAtTheGivenPlace) {
  postMouse(MouseEventType::leftDown, {50, 60});
  EXPECT_THAT(seen(), ElementsAre("button 1 down"));
  EXPECT_THAT(pointer(), Pair(50, 60));
  postMouse(MouseEventType::leftUp, {50, 60});
  EXPECT_THAT(seen(), ElementsAre("button 1 up"));
}

TEST_F(XTestEventPosterTest, TurnsTheWheelOnceForFifteenPixelsUp) {
  for (int tick = 0; tick < 4; ++tick) scroll(3, 0);
  EXPECT_THAT(seen(), IsEmpty());
  scroll(3, 0);
  EXPECT_THAT(seen(), ElementsAre("button 4 down", "button 4 up"));
  scroll(14, 0);
  EXPECT_THAT(seen(), IsEmpty());
  scroll(1, 0);
  EXPECT_THAT(seen(), ElementsAre("button 4 down", "button 4 up"));
}

TEST_F(XTestEventPosterTest, TurnsTheWheelDown) {
  scroll(-31, 0);
  EXPECT_THAT(seen(), ElementsAre("button 5 down", "button 5 up", "button 5 down", "button 5 up"));
  scroll(-14, 0);
  EXPECT_THAT(seen(), ElementsAre("button 5 down", "button 5 up")) << "one pixel was left over";
}

TEST_F(XTestEventPosterTest, TurnsTheWheelToBothSides) {
  scroll(0, 15);
  EXPECT_THAT(seen(), ElementsAre("button 7 down", "button 7 up"));
  scroll(0, -20);
  EXPECT_THAT(seen(), ElementsAre("button 6 down", "button 6 up"));
  scroll(0, -10);
  EXPECT_THAT(seen(), ElementsAre("button 6 down", "button 6 up")) << "five pixels were left over";
}

TEST_F(XTestEventPosterTest, KeepsTheRemaindersOfTheAxesApart) {
  scroll(10, -10);
  scroll(-10, 10);
  EXPECT_THAT(seen(), IsEmpty());
  scroll(14, -14);
  EXPECT_THAT(seen(), IsEmpty());
  scroll(1, -1);
  EXPECT_THAT(seen(), ElementsAre("button 4 down", "button 4 up", "button 6 down", "button 6 up"));
}

TEST_F(XTestEventPosterTest, LiftsWhatIsDown) {
  postKey(KeyboardKey::escape, true);
  postKey(KeyboardKey::a, true);
  postMouse(MouseEventType::leftDown, {10, 10});
  connection.sync();
  ASSERT_TRUE(other.isKeyDown(xEscape));
  ASSERT_TRUE(other.isKeyDown(xA));
  ASSERT_NE(other.state() & XCB_BUTTON_MASK_1, 0);
  poster.releaseEverything();
  EXPECT_FALSE(other.isKeyDown(xEscape));
  EXPECT_FALSE(other.isKeyDown(xA));
  EXPECT_EQ(other.state() & XCB_BUTTON_MASK_1, 0);
  seen();
  poster.releaseEverything();
  EXPECT_THAT(seen(), IsEmpty()) << "nothing was down any more";
}

TEST_F(XTestEventPosterTest, LiftsWhatIsDownAtItsEnd) {
  {
    XTestEventPoster another(connection);
    another.post(KeyboardEvent{keyCode(KeyboardKey::escape), true});
    connection.sync();
    ASSERT_TRUE(other.isKeyDown(xEscape));
  }
  EXPECT_FALSE(other.isKeyDown(xEscape));
}

TEST_F(XTestEventPosterTest, ServesTwoThreads) {
  std::thread thumbsticks([&] {
    for (int tick = 0; tick < 200; ++tick) {
      const auto location = poster.cursorLocation().value_or(Point{});
      poster.post(MouseEvent{MouseEventType::moved, {location.x + 0.5, location.y}});
      poster.post(ScrollEvent{.wheel1 = 3, .wheel2 = -3});
    }
  });
  other.movePointer(0, 0);
  for (int press = 0; press < 100; ++press) {
    for (const bool isDown : {true, false}) {
      if (const auto event = poster.makeKeyboardEvent(keyCode(KeyboardKey::a), isDown)) poster.post(*event);
    }
  }
  thumbsticks.join();
  const std::vector<std::string> events = seen();
  EXPECT_EQ(std::count(events.begin(), events.end(), "key 38 down"), 100);
  EXPECT_EQ(std::count(events.begin(), events.end(), "key 38 up"), 100);
  EXPECT_EQ(std::count(events.begin(), events.end(), "button 4 down"), 40);
  EXPECT_EQ(std::count(events.begin(), events.end(), "button 6 down"), 40);
}

TEST_F(XTestEventPosterTest, OutlivesALostConnection) {
  server.process().signal(SIGKILL);
  server.process().waitForExit();
  EXPECT_FALSE(poster.makeKeyboardEvent(keyCode(KeyboardKey::a), true));
  EXPECT_FALSE(poster.cursorLocation());
  poster.post(MouseEvent{MouseEventType::moved, {1, 1}});
  poster.releaseEverything();
}

TEST(XTestEventPosterWithoutXTest, PostsNothingAndKeepsTheConnection) {
  const XServer server({"-extension", "XTEST"});
  const XcbConnection connection(server.display());
  XTestEventPoster poster(connection);
  const auto event = poster.makeKeyboardEvent(keyCode(KeyboardKey::a), true);
  ASSERT_TRUE(event);
  poster.post(*event);
  connection.sync();
  EXPECT_FALSE(connection.isLost());
  OtherClient other(server.display());
  EXPECT_FALSE(other.isKeyDown(xA));
}

}  // namespace
}  // namespace vantorel::test
