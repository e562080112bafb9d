#include <string>
#include <vector>

#include "ControllersTest.h"

namespace vantorel::test {
namespace {

class States : public ControllersTest {
 protected:
  States() : pad(attach("pad")), gamepad(pad->extendedGamepad()) {}

  bool isPressed(GamepadButton button) { return gamepad->input(button)->isPressed(); }

  void pressTriggerTo(int travel) {
    // SDL makes 0 to 32767 of a virtual trigger's -32768 to 32767.
    play("axis pad triggerleft " + std::to_string(travel * 2 - 32768 + (travel > 0 ? 1 : 0)));
  }

  std::shared_ptr<LinuxController> pad;
  std::shared_ptr<ExtendedGamepad> gamepad;
};

TEST_F(States, APadRestsWithAllButtonsUpAndItsSticksCentred) {
  for (const GamepadButton button : allGamepadButtons()) EXPECT_FALSE(isPressed(button)) << rawValue(button);
  EXPECT_EQ(gamepad->leftThumbstick().x, 0);
  EXPECT_EQ(gamepad->leftThumbstick().y, 0);
  EXPECT_EQ(gamepad->rightThumbstick().x, 0);
  EXPECT_EQ(gamepad->rightThumbstick().y, 0);
}

TEST_F(States, EveryButtonIsReadAsPressedWhileItIsHeldAndNoOtherIs) {
  for (const GamepadButton button : allGamepadButtons()) {
    play("button pad " + std::string(rawValue(button)) + " 1");
    for (const GamepadButton other : allGamepadButtons()) {
      EXPECT_EQ(isPressed(other), other == button) << rawValue(button) << ", " << rawValue(other);
    }
    play("button pad " + std::string(rawValue(button)) + " 0");
    EXPECT_FALSE(isPressed(button)) << rawValue(button);
  }
}

TEST_F(States, AreFreshWhileTheMainQueueStandsStill) {
  play("button pad buttonA 1");
  EXPECT_FALSE(queue_.isEmpty());
  EXPECT_TRUE(isPressed(GamepadButton::buttonA));
}

TEST_F(States, SticksArePositiveToTheRightAndUpwards) {
  play("axis pad leftx 32767");
  play("axis pad lefty -32768");
  play("axis pad rightx -32768");
  play("axis pad righty 32767");
  EXPECT_EQ(gamepad->leftThumbstick().x, 1.0F);
  EXPECT_EQ(gamepad->leftThumbstick().y, 1.0F);
  EXPECT_EQ(gamepad->rightThumbstick().x, -1.0F);
  EXPECT_EQ(gamepad->rightThumbstick().y, -1.0F);
  play("axis pad leftx 16384");
  EXPECT_NEAR(gamepad->leftThumbstick().x, 0.5F, 0.0001F);
  EXPECT_EQ(gamepad->leftThumbstick().y, 1.0F);
}

TEST_F(States, ATriggerIsPressedFromAQuarterOfItsTravelAndReleasedBelowAFifth) {
  std::vector<bool> changes;
  gamepad->input(GamepadButton::leftTrigger)->setPressedChangedHandler([&](bool isPressed) {
    changes.push_back(isPressed);
  });
  pressTriggerTo(8100);
  EXPECT_FALSE(isPressed(GamepadButton::leftTrigger));
  pressTriggerTo(8200);
  EXPECT_TRUE(isPressed(GamepadButton::leftTrigger));
  EXPECT_FALSE(isPressed(GamepadButton::rightTrigger));
  pressTriggerTo(6600);
  EXPECT_TRUE(isPressed(GamepadButton::leftTrigger));
  pressTriggerTo(6500);
  EXPECT_FALSE(isPressed(GamepadButton::leftTrigger));
  pressTriggerTo(8100);
  EXPECT_FALSE(isPressed(GamepadButton::leftTrigger));
  queue_.run();
  EXPECT_EQ(changes, (std::vector<bool>{true, false}));
}

TEST_F(States, AHandlerIsCalledOnTheMainQueueForEveryChange) {
  std::vector<bool> changes;
  gamepad->input(GamepadButton::buttonB)->setPressedChangedHandler([&](bool isPressed) {
    changes.push_back(isPressed);
  });
  play("button pad buttonB 1");
  play("button pad buttonB 1");
  play("button pad buttonB 0");
  play("button pad buttonX 1");
  EXPECT_TRUE(changes.empty());
  queue_.run();
  EXPECT_EQ(changes, (std::vector<bool>{true, false}));
}

TEST_F(States, TheHandlerInstalledWhenTheBlockRunsIsCalled) {
  int oldCalls = 0;
  int newCalls = 0;
  ButtonInput& button = *gamepad->input(GamepadButton::buttonB);
  button.setPressedChangedHandler([&](bool) { ++oldCalls; });
  play("button pad buttonB 1");
  button.setPressedChangedHandler([&](bool) { ++newCalls; });
  queue_.run();
  EXPECT_EQ(oldCalls, 0);
  EXPECT_EQ(newCalls, 1);
}

TEST_F(States, AHandlerMayReplaceItself) {
  int calls = 0;
  ButtonInput& button = *gamepad->input(GamepadButton::buttonB);
  button.setPressedChangedHandler([&](bool) {
    button.setPressedChangedHandler(nullptr);
    ++calls;
  });
  play("button pad buttonB 1");
  play("button pad buttonB 0");
  queue_.run();
  EXPECT_EQ(calls, 1);
}

TEST_F(States, AreHeardOfWithoutAWindowInFrontWhateverIsAskedFor) {
  service().setShouldMonitorBackgroundEvents(true);
  play("button pad buttonB 1");
  EXPECT_TRUE(isPressed(GamepadButton::buttonB));
}

}  // namespace
}  // namespace vantorel::test
