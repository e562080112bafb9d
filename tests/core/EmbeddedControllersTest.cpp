#include <gmock/gmock.h>

#include "EmbeddedPlatform.h"

namespace vantorel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class EmbeddedControllersTest : public testing::Test {
 protected:
  /// Notes the changes of `button` with `name` in front.
  void observe(EmbeddedController& controller, GamepadButton button, const std::string& name) {
    controller.extendedGamepad()->input(button)->setPressedChangedHandler(
        [this, name](bool isPressed) { notes.push_back(name + (isPressed ? " down" : " up")); });
  }

  EmbeddedPlatform platform;
  EmbeddedGameControllers& service = platform.gameControllers;
  std::shared_ptr<EmbeddedController> pad = service.declare({"Vendor", "Category"});
  std::vector<std::string> notes;
};

TEST_F(EmbeddedControllersTest, DescribesAController) {
  EXPECT_EQ(pad->vendorName(), "Vendor");
  EXPECT_EQ(pad->productCategory(), "Category");
  EXPECT_FALSE(pad->hasMicroGamepad());
  for (const GamepadButton button : allGamepadButtons()) {
    EXPECT_NE(pad->extendedGamepad()->input(button), nullptr) << rawValue(button);
  }
  EXPECT_EQ(pad->extendedGamepad(), pad->extendedGamepad());
}

TEST_F(EmbeddedControllersTest, DescribesLesserControllers) {
  const auto micro = service.declare({std::nullopt, "Remote", ControllerProfile::micro});
  EXPECT_EQ(micro->vendorName(), std::nullopt);
  EXPECT_TRUE(micro->hasMicroGamepad());
  EXPECT_EQ(micro->extendedGamepad(), nullptr);
  const auto standard = service.declare({std::nullopt, "Old", ControllerProfile::standard});
  EXPECT_FALSE(standard->hasMicroGamepad());
  EXPECT_EQ(standard->extendedGamepad(), nullptr);
}

TEST_F(EmbeddedControllersTest, LacksTheButtonsThatAreMissing) {
  const auto lesser = service.declare({"Vendor",
                                       "Category",
                                       ControllerProfile::extended,
                                       {GamepadButton::leftThumbstick, GamepadButton::options}});
  EXPECT_EQ(lesser->extendedGamepad()->input(GamepadButton::leftThumbstick), nullptr);
  EXPECT_EQ(lesser->extendedGamepad()->input(GamepadButton::options), nullptr);
  EXPECT_NE(lesser->extendedGamepad()->input(GamepadButton::rightThumbstick), nullptr);
  service.plug(lesser);
  lesser->press(GamepadButton::leftThumbstick);
  lesser->moveLeftThumbstick({1, 0});
  EXPECT_EQ(lesser->extendedGamepad()->leftThumbstick().x, 1);
}

TEST_F(EmbeddedControllersTest, ListsPluggedControllersTheLatestLast) {
  const auto other = service.declare({"Other", "Category"});
  EXPECT_THAT(service.controllers(), IsEmpty());
  service.plug(other);
  service.plug(pad);
  service.plug(other);
  EXPECT_THAT(service.controllers(), ElementsAre(other, pad));
  service.unplug(other);
  service.unplug(other);
  EXPECT_THAT(service.controllers(), ElementsAre(pad));
  service.plug(other);
  EXPECT_THAT(service.controllers(), ElementsAre(pad, other));
}

TEST_F(EmbeddedControllersTest, TellsOfChangesOnTheMainQueue) {
  const auto connects = service.observeConnect([this](const std::shared_ptr<Controller>& controller) {
    notes.push_back(controller ? *controller->vendorName() : "nothing");
  });
  const auto disconnects = service.observeDisconnect([this] { notes.emplace_back("gone"); });
  service.plug(pad);
  service.plug(pad);
  service.plugNothing();
  service.unplug(pad);
  service.unplug(pad);
  EXPECT_THAT(notes, IsEmpty());
  platform.time.settle();
  EXPECT_THAT(notes, ElementsAre("Vendor", "nothing", "gone"));
}

TEST_F(EmbeddedControllersTest, TellsWhoeverObservesWhenTheBlockRuns) {
  service.plug(pad);
  auto connects =
      service.observeConnect([this](const std::shared_ptr<Controller>&) { notes.emplace_back("told"); });
  platform.time.settle();
  EXPECT_THAT(notes, ElementsAre("told"));
  service.plugNothing();
  connects.reset();
  platform.time.settle();
  EXPECT_THAT(notes, ElementsAre("told"));
}

TEST_F(EmbeddedControllersTest, ChangesButtonsAtOnceAndTellsTheHandlerOfTheStateOfEachChange) {
  service.plug(pad);
  observe(*pad, GamepadButton::buttonB, "B");
  pad->press(GamepadButton::buttonB);
  EXPECT_TRUE(pad->extendedGamepad()->input(GamepadButton::buttonB)->isPressed());
  pad->press(GamepadButton::buttonB);
  pad->release(GamepadButton::buttonB);
  pad->release(GamepadButton::buttonB);
  EXPECT_FALSE(pad->extendedGamepad()->input(GamepadButton::buttonB)->isPressed());
  EXPECT_THAT(notes, IsEmpty());
  platform.time.settle();
  EXPECT_THAT(notes, ElementsAre("B down", "B up"));
}

TEST_F(EmbeddedControllersTest, TellsTheHandlerThatIsInstalledWhenTheBlockRuns) {
  service.plug(pad);
  observe(*pad, GamepadButton::buttonB, "old");
  pad->press(GamepadButton::buttonB);
  observe(*pad, GamepadButton::buttonB, "new");
  platform.time.settle();
  EXPECT_THAT(notes, ElementsAre("new down"));
}

TEST_F(EmbeddedControllersTest, IgnoresTheInputsOfAControllerThatIsNotPlugged) {
  observe(*pad, GamepadButton::buttonB, "B");
  pad->press(GamepadButton::buttonB);
  pad->moveLeftThumbstick({1, 1});
  pad->moveRightThumbstick({1, 1});
  platform.time.settle();
  EXPECT_THAT(notes, IsEmpty());
  EXPECT_FALSE(pad->extendedGamepad()->input(GamepadButton::buttonB)->isPressed());
  EXPECT_EQ(pad->extendedGamepad()->leftThumbstick().x, 0);
  EXPECT_EQ(pad->extendedGamepad()->rightThumbstick().y, 0);
}

TEST_F(EmbeddedControllersTest, IgnoresTheInputsOfLesserControllers) {
  const auto micro = service.declare({std::nullopt, "Remote", ControllerProfile::micro});
  service.plug(micro);
  micro->press(GamepadButton::buttonA);
  micro->moveLeftThumbstick({1, 0});
  EXPECT_EQ(micro->extendedGamepad(), nullptr);
}

TEST_F(EmbeddedControllersTest, UnplugsToNeutralWithoutTellingTheHandlers) {
  service.plug(pad);
  const auto gamepad = pad->extendedGamepad();
  pad->press(GamepadButton::buttonB);
  pad->moveLeftThumbstick({0.5F, -0.5F});
  pad->moveRightThumbstick({1, -1});
  platform.time.settle();
  observe(*pad, GamepadButton::buttonB, "B");
  service.unplug(pad);
  platform.time.settle();
  EXPECT_FALSE(gamepad->input(GamepadButton::buttonB)->isPressed());
  EXPECT_EQ(gamepad->leftThumbstick().x, 0);
  EXPECT_EQ(gamepad->leftThumbstick().y, 0);
  EXPECT_EQ(gamepad->rightThumbstick().x, 0);
  EXPECT_EQ(gamepad->rightThumbstick().y, 0);
  service.plug(pad);
  pad->press(GamepadButton::buttonB);
  platform.time.settle();
  EXPECT_THAT(notes, ElementsAre("B down"));
  EXPECT_EQ(pad->extendedGamepad(), gamepad);
}

}  // namespace
}  // namespace vantorel
