#include <algorithm>
#include <chrono>
#include <csignal>
#include <string>
#include <vector>

#include "ControllersTest.h"

namespace vantorel::test {
namespace {

class Plugging : public ControllersTest {
 protected:
  /// Keeps what is told, and what the service answered meanwhile.
  void observe() {
    connect = service().observeConnect([this](const std::shared_ptr<Controller>& controller) {
      told.push_back("+" + controller->vendorName().value_or("?"));
      const auto all = service().controllers();
      EXPECT_EQ(all.back(), controller);
    });
    disconnect = service().observeDisconnect([this] { told.emplace_back("-"); });
  }

  std::vector<std::string> told;
  Subscription connect;
  Subscription disconnect;
};

TEST_F(Plugging, IsToldOnTheMainQueueAndJoinsTheListWithTheNotification) {
  observe();
  const auto before = service().controllers().size();
  play("attach pad");
  EXPECT_TRUE(told.empty());
  EXPECT_EQ(find("pad"), nullptr);
  queue_.run();
  EXPECT_EQ(told, std::vector<std::string>{"+pad"});
  EXPECT_EQ(service().controllers().size(), before + 1);
}

TEST_F(Plugging, UnpluggingLeavesTheListWithTheNotification) {
  observe();
  attach("pad");
  play("detach pad");
  EXPECT_NE(find("pad"), nullptr);
  queue_.run();
  EXPECT_EQ(told, (std::vector<std::string>{"+pad", "-"}));
  EXPECT_EQ(find("pad"), nullptr);
}

TEST_F(Plugging, AnUnpluggedPadReadsAsNeutralAndCallsNoHandler) {
  const auto pad = attach("pad");
  const auto gamepad = pad->extendedGamepad();
  play("button pad buttonB 1");
  play("button pad leftTrigger 1");
  play("axis pad leftx 32767");
  play("axis pad righty 32767");
  queue_.run();
  int calls = 0;
  for (const GamepadButton button : allGamepadButtons()) {
    gamepad->input(button)->setPressedChangedHandler([&](bool) { ++calls; });
  }
  bool isTold = false;
  const auto subscription = service().observeDisconnect([&] { isTold = true; });
  play("detach pad");
  for (const GamepadButton button : allGamepadButtons()) EXPECT_FALSE(gamepad->input(button)->isPressed());
  EXPECT_EQ(gamepad->leftThumbstick().x, 0);
  EXPECT_EQ(gamepad->rightThumbstick().y, 0);
  queue_.run();
  EXPECT_TRUE(isTold);
  EXPECT_EQ(calls, 0);
}

TEST_F(Plugging, APressBeforeTheUnpluggingIsStillToldBeforeIt) {
  const auto pad = attach("pad");
  observe();
  pad->extendedGamepad()->input(GamepadButton::buttonB)->setPressedChangedHandler([&](bool isPressed) {
    told.emplace_back(isPressed ? "B down" : "B up");
  });
  play("button pad buttonB 1");
  play("detach pad");
  queue_.run();
  EXPECT_EQ(told, (std::vector<std::string>{"B down", "-"}));
}

TEST_F(Plugging, SeveralPadsAreReadEachByItself) {
  const auto first = attach("first");
  const auto second = attach("second");
  const auto third = attach("third");
  play("button second buttonX 1");
  play("axis third leftx -32768");
  EXPECT_FALSE(first->extendedGamepad()->input(GamepadButton::buttonX)->isPressed());
  EXPECT_TRUE(second->extendedGamepad()->input(GamepadButton::buttonX)->isPressed());
  EXPECT_FALSE(third->extendedGamepad()->input(GamepadButton::buttonX)->isPressed());
  EXPECT_EQ(first->extendedGamepad()->leftThumbstick().x, 0);
  EXPECT_EQ(third->extendedGamepad()->leftThumbstick().x, -1);
}

TEST_F(Plugging, TheListKeepsTheOrderOfConnecting) {
  attach("first");
  attach("second");
  attach("third");
  play("detach first");
  queue_.run();
  attach("first");
  std::vector<std::string> names;
  for (const auto& controller : service().controllers()) {
    const auto name = controller->vendorName().value_or("");
    if (name == "first" || name == "second" || name == "third") names.push_back(name);
  }
  EXPECT_EQ(names, (std::vector<std::string>{"second", "third", "first"}));
}

TEST_F(Plugging, APadThatComesBackIsANewController) {
  const auto old = attach("pad");
  play("detach pad");
  const auto fresh = attach("pad");
  ASSERT_NE(fresh, nullptr);
  EXPECT_NE(fresh, old);
  play("button pad buttonA 1");
  EXPECT_TRUE(fresh->extendedGamepad()->input(GamepadButton::buttonA)->isPressed());
  EXPECT_FALSE(old->extendedGamepad()->input(GamepadButton::buttonA)->isPressed());
}

TEST_F(Plugging, ManyTimesInARowLosesNothing) {
  observe();
  for (int round = 0; round < 50; ++round) {
    play("attach pad");
    play("button pad buttonA 1");
    play("detach pad");
  }
  queue_.run();
  EXPECT_EQ(std::count(told.begin(), told.end(), "+pad"), 50);
  EXPECT_EQ(std::count(told.begin(), told.end(), "-"), 50);
}

TEST_F(Plugging, AnEndedSubscriptionHearsNothing) {
  observe();
  connect.reset();
  disconnect.reset();
  attach("pad");
  play("detach pad");
  queue_.run();
  EXPECT_TRUE(told.empty());
}

TEST_F(Plugging, TheEndOfTheServiceLeavesPadsNeutralAndPostedBlocksWithoutEffect) {
  const auto pad = attach("pad");
  const auto gamepad = pad->extendedGamepad();
  int calls = 0;
  gamepad->input(GamepadButton::buttonB)->setPressedChangedHandler([&](bool) { ++calls; });
  observe();
  play("button pad buttonB 1");
  play("attach other");
  stop();
  queue_.run();
  EXPECT_EQ(calls, 0);
  EXPECT_TRUE(told.empty());
  EXPECT_FALSE(gamepad->input(GamepadButton::buttonB)->isPressed());
}

TEST_F(Plugging, SignalsStayAsTheyWere) {
  service().controllers();
  for (const int number : {SIGINT, SIGTERM}) {
    struct sigaction action {};
    ASSERT_EQ(sigaction(number, nullptr, &action), 0);
    EXPECT_EQ(action.sa_handler, SIG_DFL) << number;
  }
}

TEST_F(Plugging, TheServiceStartsWithoutDelayAndStopsAtOnce) {
  using Clock = std::chrono::steady_clock;
  for (int round = 0; round < 5; ++round) {
    start();
    service().controllers();
    const auto begin = Clock::now();
    stop();
    EXPECT_LT(Clock::now() - begin, std::chrono::seconds(5));
  }
  start();  // and it may end before its first look is done
  stop();
}

}  // namespace
}  // namespace vantorel::test
