#include "X11HotKeys.h"

#include <gmock/gmock.h>
#include <poll.h>

#include <algorithm>
#include <array>
#include <csignal>

#include "EventWindow.h"
#include "OtherClient.h"
#include "TestQueue.h"
#include "WindowManager.h"
#include "XServer.h"

namespace vantorel::test {
namespace {

using testing::Contains;
using testing::Not;

constexpr xcb_keycode_t xShift = 50;
constexpr xcb_keycode_t xM = 58;
constexpr xcb_keycode_t xCapsLock = 66;
constexpr xcb_keycode_t xNumLock = 77;
constexpr xcb_keycode_t xScrollLock = 78;
constexpr xcb_keycode_t xSuper = 133;

struct Lock {
  xcb_keycode_t key;
  unsigned mask;
};
constexpr std::array locks{Lock{xCapsLock, XCB_MOD_MASK_LOCK}, Lock{xNumLock, XCB_MOD_MASK_2},
                           Lock{xScrollLock, XCB_MOD_MASK_3}};

constexpr unsigned superShift = XCB_MOD_MASK_4 | XCB_MOD_MASK_SHIFT;

// Command-Shift-M, Shift-M and Control-Option-M with Carbon's modifiers.
constexpr HotKey commandShiftM{.signature = 0x56544c48, .id = 1, .keyCode = 46, .modifiers = 256 + 512};
constexpr HotKey shiftM{.signature = 0x56544c48, .id = 2, .keyCode = 46, .modifiers = 512};
constexpr HotKey controlOptionM{.signature = 0x56544c48, .id = 3, .keyCode = 46, .modifiers = 4096 + 2048};

class X11HotKeysTest : public testing::Test {
 protected:
  X11HotKeysTest() {
    hotKeys.installHandler([this] { ++calls; });
  }

  /// How often the handler was called for what the other client has done so far.
  int callsSoFar() {
    connection.sync();
    hotKeys.processEvents();
    queue.run();
    return calls;
  }

  /// Turns the locks of `subset`, bits in the order of `locks`, on or off.
  void toggleLocks(unsigned subset) {
    for (const Lock& lock : locks) {
      if ((subset >> (&lock - locks.data()) & 1) != 0) other.tap({lock.key});
    }
  }

  /// The locks of `subset` as bits of a key event's state.
  static unsigned lockBits(unsigned subset) {
    unsigned bits = 0;
    for (const Lock& lock : locks) {
      if ((subset >> (&lock - locks.data()) & 1) != 0) bits |= lock.mask;
    }
    return bits;
  }

  bool waitForEvents() const {
    pollfd file{hotKeys.fileDescriptor(), POLLIN, 0};
    return poll(&file, 1, static_cast<int>(generousDeadline.count())) == 1;
  }

  XServer server;
  XcbConnection connection{server.display()};
  OtherClient other{server.display()};
  TestQueue queue;
  int calls = 0;
  int losses = 0;
  X11HotKeys hotKeys{connection, queue, [this] { ++losses; }};
};

TEST_F(X11HotKeysTest, WakeTheProgramUpAndCallTheHandlerOnTheMainQueue) {
  const auto registration = hotKeys.registerHotKey(commandShiftM);
  ASSERT_EQ(registration.status, 0);
  ASSERT_TRUE(registration.reference);
  other.tap({xSuper, xShift, xM});
  ASSERT_TRUE(waitForEvents());
  connection.sync();
  hotKeys.processEvents();
  EXPECT_EQ(calls, 0) << "not before the main queue runs";
  queue.run();
  EXPECT_EQ(calls, 1);
}

TEST_F(X11HotKeysTest, WorkUnderEveryCombinationOfLocksWhileAnotherWindowHasTheFocus) {
  const WindowManager manager(server);
  EventWindow window(server.display());
  other.setModifierKey(XCB_MAP_INDEX_3, xScrollLock);
  const auto registration = hotKeys.registerHotKey(commandShiftM);
  ASSERT_EQ(registration.status, 0);
  for (unsigned subset = 0; subset < 8; ++subset) {
    toggleLocks(subset);
    ASSERT_EQ(other.state(), lockBits(subset));
    ASSERT_TRUE(window.hasFocus());
    const int before = callsSoFar();
    window.takeEvents();
    other.tap({xSuper, xShift, xM});
    EXPECT_EQ(callsSoFar(), before + 1) << "locks " << subset;
    EXPECT_THAT(window.takeEvents(), Not(Contains("key 58 down")));
    toggleLocks(subset);
  }
  EXPECT_EQ(calls, 8);
}

TEST_F(X11HotKeysTest, LeaveOtherCombinationsAlone) {
  EventWindow window(server.display());
  const auto registration = hotKeys.registerHotKey(commandShiftM);
  ASSERT_EQ(registration.status, 0);
  other.tap({xM});
  other.tap({xShift, xM});
  other.tap({xSuper, xM});
  EXPECT_EQ(callsSoFar(), 0);
  const auto events = window.takeEvents();
  EXPECT_EQ(std::count(events.begin(), events.end(), "key 58 down"), 3);
}

TEST_F(X11HotKeysTest, CallTheHandlerOnceForAHeldKey) {
  const auto registration = hotKeys.registerHotKey(commandShiftM);
  ASSERT_EQ(registration.status, 0);
  for (const xcb_keycode_t key : {xSuper, xShift, xM}) other.press(key);
  EXPECT_EQ(callsSoFar(), 1);
  for (int repeat = 0; repeat < 5; ++repeat) {
    ASSERT_TRUE(waitForEvents()) << "the server repeats the key";
    hotKeys.processEvents();
  }
  queue.run();
  EXPECT_EQ(calls, 1);
  other.release(xM);
  other.tap({xM});
  EXPECT_EQ(callsSoFar(), 2) << "a new press counts, however soon it comes";
}

TEST_F(X11HotKeysTest, RefuseACombinationOfAnotherClientAndTakeNoneOfIt) {
  ASSERT_TRUE(other.grab(xM, superShift | XCB_MOD_MASK_2));
  const auto registration = hotKeys.registerHotKey(commandShiftM);
  EXPECT_EQ(registration.status, -9878);
  EXPECT_FALSE(registration.reference);
  connection.sync();
  EXPECT_TRUE(other.grab(xM, superShift));
  EXPECT_TRUE(other.grab(xM, superShift | XCB_MOD_MASK_LOCK));
}

TEST_F(X11HotKeysTest, RefuseASecondRegistration) {
  const auto first = hotKeys.registerHotKey(commandShiftM);
  ASSERT_EQ(first.status, 0);
  const auto second = hotKeys.registerHotKey(commandShiftM);
  EXPECT_EQ(second.status, -9878);
  EXPECT_FALSE(second.reference);
  other.tap({xSuper, xShift, xM});
  EXPECT_EQ(callsSoFar(), 1) << "the first one stays";
}

TEST_F(X11HotKeysTest, RefuseWhatTheKeyboardLacks) {
  EXPECT_EQ(hotKeys.registerHotKey({.keyCode = 10, .modifiers = 512}).status, -9879);
  EXPECT_EQ(hotKeys.registerHotKey({.keyCode = 46, .modifiers = 1}).status, -9879);
  EXPECT_EQ(hotKeys.registerHotKey({.keyCode = 46 + 0x10000, .modifiers = 512}).status, -9879);
}

TEST_F(X11HotKeysTest, FreeTheCombinationWhenTheReferenceEnds) {
  auto registration = hotKeys.registerHotKey(commandShiftM);
  ASSERT_EQ(registration.status, 0);
  EXPECT_FALSE(other.grab(xM, superShift));
  registration.reference.reset();
  other.tap({xSuper, xShift, xM});
  EXPECT_EQ(callsSoFar(), 0);
  EXPECT_TRUE(other.grab(xM, superShift));
  EXPECT_TRUE(other.grab(xM, superShift | XCB_MOD_MASK_LOCK | XCB_MOD_MASK_2));
}

TEST_F(X11HotKeysTest, CanBeRegisteredAgainWhileTheKeyIsDown) {
  auto registration = hotKeys.registerHotKey(commandShiftM);
  for (const xcb_keycode_t key : {xSuper, xShift, xM}) other.press(key);
  EXPECT_EQ(callsSoFar(), 1);
  registration.reference.reset();
  registration = hotKeys.registerHotKey(commandShiftM);
  ASSERT_EQ(registration.status, 0);
  EXPECT_EQ(callsSoFar(), 1);
  other.release(xM);
  other.tap({xM});
  EXPECT_EQ(callsSoFar(), 2);
}

TEST_F(X11HotKeysTest, TellSeveralCombinationsApart) {
  auto first = hotKeys.registerHotKey(shiftM);
  const auto second = hotKeys.registerHotKey(controlOptionM);
  ASSERT_EQ(first.status, 0);
  ASSERT_EQ(second.status, 0);
  constexpr xcb_keycode_t xControl = 37;
  constexpr xcb_keycode_t xAlt = 64;
  other.tap({xShift, xM});
  EXPECT_EQ(callsSoFar(), 1);
  other.tap({xControl, xAlt, xM});
  EXPECT_EQ(callsSoFar(), 2);
  first.reference.reset();
  other.tap({xShift, xM});
  EXPECT_EQ(callsSoFar(), 2);
}

TEST_F(X11HotKeysTest, FollowAKeymapThatMovesTheSuperKey) {
  const auto registration = hotKeys.registerHotKey(commandShiftM);
  ASSERT_EQ(registration.status, 0);
  other.setModifierKey(XCB_MAP_INDEX_4, 0);
  other.setModifierKey(XCB_MAP_INDEX_3, xSuper);
  EXPECT_EQ(callsSoFar(), 0);
  other.tap({xSuper, xShift, xM});
  EXPECT_EQ(callsSoFar(), 1);
  EXPECT_TRUE(other.grab(xM, superShift)) << "the former bits are free";
}

TEST_F(X11HotKeysTest, FollowAKeymapThatGetsAnotherLock) {
  const auto registration = hotKeys.registerHotKey(commandShiftM);
  ASSERT_EQ(registration.status, 0);
  other.setModifierKey(XCB_MAP_INDEX_3, xScrollLock);
  other.tap({xScrollLock});
  ASSERT_EQ(other.state(), XCB_MOD_MASK_3);
  EXPECT_EQ(callsSoFar(), 0);
  other.tap({xSuper, xShift, xM});
  EXPECT_EQ(callsSoFar(), 1);
}

TEST_F(X11HotKeysTest, ComeBackWithTheSuperKey) {
  const auto registration = hotKeys.registerHotKey(commandShiftM);
  ASSERT_EQ(registration.status, 0);
  other.setModifierKey(XCB_MAP_INDEX_4, 0);
  EXPECT_EQ(callsSoFar(), 0);
  other.tap({xShift, xM});
  other.tap({xSuper, xShift, xM});
  EXPECT_EQ(callsSoFar(), 0);
  EXPECT_EQ(hotKeys.registerHotKey({.keyCode = 45, .modifiers = 256}).status, -9879);
  other.setModifierKey(XCB_MAP_INDEX_4, xSuper);
  EXPECT_EQ(callsSoFar(), 0);
  other.tap({xSuper, xShift, xM});
  EXPECT_EQ(callsSoFar(), 1);
}

TEST_F(X11HotKeysTest, TellOnceThatTheConnectionIsLost) {
  const auto registration = hotKeys.registerHotKey(commandShiftM);
  ASSERT_EQ(registration.status, 0);
  hotKeys.processEvents();
  queue.run();
  EXPECT_EQ(losses, 0);
  server.process().signal(SIGKILL);
  ASSERT_TRUE(waitForEvents());
  ASSERT_TRUE(waitUntil([&] {
    hotKeys.processEvents();
    return connection.isLost();
  }));
  hotKeys.processEvents();
  EXPECT_EQ(losses, 0) << "not before the main queue runs";
  queue.run();
  EXPECT_EQ(losses, 1);
}

}  // namespace
}  // namespace vantorel::test
