#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <limits>
#include <string>
#include <utility>

#include "ConnectionOrder.h"
#include "ControllerCategory.h"
#include "LinuxController.h"
#include "SdlButtons.h"
#include "StickDeflection.h"
#include "TemporaryDirectory.h"
#include "TriggerTravel.h"

namespace vantorel::test {
namespace {

TEST(ControllerCategory, FollowsTheTypeOfThePad) {
  const std::pair<SDL_GameControllerType, std::string> expected[] = {
      {SDL_CONTROLLER_TYPE_UNKNOWN, "Gamepad"},
      {SDL_CONTROLLER_TYPE_XBOX360, "Xbox 360"},
      {SDL_CONTROLLER_TYPE_XBOXONE, "Xbox One"},
      {SDL_CONTROLLER_TYPE_PS3, "DualShock 3"},
      {SDL_CONTROLLER_TYPE_PS4, "DualShock 4"},
      {SDL_CONTROLLER_TYPE_PS5, "DualSense"},
      {SDL_CONTROLLER_TYPE_NINTENDO_SWITCH_PRO, "Switch Pro Controller"},
      {SDL_CONTROLLER_TYPE_NINTENDO_SWITCH_JOYCON_LEFT, "Joy-Con"},
      {SDL_CONTROLLER_TYPE_NINTENDO_SWITCH_JOYCON_RIGHT, "Joy-Con"},
      {SDL_CONTROLLER_TYPE_NINTENDO_SWITCH_JOYCON_PAIR, "Joy-Con"},
      {SDL_CONTROLLER_TYPE_GOOGLE_STADIA, "Stadia"},
      {SDL_CONTROLLER_TYPE_AMAZON_LUNA, "Luna"},
      {SDL_CONTROLLER_TYPE_NVIDIA_SHIELD, "Shield"},
      {SDL_CONTROLLER_TYPE_VIRTUAL, "Virtual"},
  };
  for (const auto& [type, category] : expected) EXPECT_EQ(controllerCategory(type), category) << type;
}

TEST(SdlButtons, EveryButtonButTheTriggersIsOneOfSdls) {
  for (const GamepadButton button : allGamepadButtons()) {
    const auto sdlButton = sdlButtonOf(button);
    const bool isTrigger = button == GamepadButton::leftTrigger || button == GamepadButton::rightTrigger;
    EXPECT_EQ(sdlButton.has_value(), !isTrigger) << rawValue(button);
    if (!sdlButton) continue;
    EXPECT_EQ(gamepadButtonOf(*sdlButton), button);
  }
  EXPECT_EQ(gamepadButtonOf(SDL_CONTROLLER_BUTTON_GUIDE), std::nullopt);
}

TEST(TriggerTravel, IsPressedFromAQuarterAndReleasedBelowAFifth) {
  TriggerTravel trigger;
  EXPECT_FALSE(trigger.update(0));
  EXPECT_FALSE(trigger.update(8191));
  EXPECT_TRUE(trigger.update(8192));
  EXPECT_TRUE(trigger.update(32767));
  EXPECT_TRUE(trigger.update(6554));
  EXPECT_FALSE(trigger.update(6553));
  EXPECT_FALSE(trigger.update(8191));
  EXPECT_TRUE(trigger.update(8192));
}

TEST(StickDeflection, ReachesBothEndsExactly) {
  EXPECT_EQ(stickDeflection(-32768), -1.0F);
  EXPECT_EQ(stickDeflection(32767), 1.0F);
  EXPECT_EQ(stickDeflection(-16384), -0.5F);
  EXPECT_EQ(stickDeflection(0), 0.0F);
}

TEST(StickDeflection, IsPositiveUpwardsAndNeverMinusZero) {
  EXPECT_EQ(upwardDeflection(-32768), 1.0F);
  EXPECT_EQ(upwardDeflection(32767), -1.0F);
  EXPECT_EQ(upwardDeflection(0), 0.0F);
  EXPECT_FALSE(std::signbit(upwardDeflection(0)));
}

TEST(ConnectionOrder, IsTheKernelsNumberOfTheDeviceNotOfTheNode) {
  const TemporaryDirectory directory;
  std::filesystem::create_directory(directory.path() / "event3");
  std::filesystem::create_directory(directory.path() / "event12");
  std::filesystem::create_symlink("../../input40", directory.path() / "event3" / "device");
  std::filesystem::create_symlink("../../input7", directory.path() / "event12" / "device");
  EXPECT_EQ(connectionOrder("/dev/input/event3", directory.path()), 40U);
  EXPECT_EQ(connectionOrder("/dev/input/event12", directory.path()), 7U);
}

TEST(ConnectionOrder, PutsWhatIsNoDeviceLast) {
  const TemporaryDirectory directory;
  EXPECT_EQ(connectionOrder("/dev/input/event3", directory.path()),
            std::numeric_limits<std::uint64_t>::max());
  EXPECT_EQ(connectionOrder("", directory.path()), std::numeric_limits<std::uint64_t>::max());
}

TEST(LinuxController, WithoutANameHasNoVendorName) {
  LinuxController controller({.name = std::nullopt,
                              .category = "Gamepad",
                              .node = "/dev/input/event5",
                              .profile = ControllerProfile::micro,
                              .buttons = {}});
  EXPECT_EQ(controller.vendorName(), std::nullopt);
  EXPECT_TRUE(controller.hasMicroGamepad());
  EXPECT_EQ(controller.extendedGamepad(), nullptr);
  const ControllerFacts facts = controller.facts();
  EXPECT_EQ(facts.name, "");
  EXPECT_EQ(facts.category, "Gamepad");
  EXPECT_EQ(facts.profile, "micro");
  EXPECT_EQ(facts.node, "/dev/input/event5");
}

}  // namespace
}  // namespace vantorel::test
