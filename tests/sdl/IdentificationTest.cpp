#include <SDL.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "ControllersTest.h"

namespace vantorel::test {
namespace {

/// Pads that lack something, as SDL sees them.
class Identification : public ControllersTest {
 protected:
  /// Plugs in a pad with those buttons and axes alone.
  std::shared_ptr<LinuxController> attachWith(const std::string& name,
                                              const std::vector<SDL_GameControllerButton>& buttons,
                                              const std::vector<SDL_GameControllerAxis>& axes,
                                              SDL_JoystickType type = SDL_JOYSTICK_TYPE_GAMECONTROLLER) {
    SDL_VirtualJoystickDesc description{};
    description.version = SDL_VIRTUAL_JOYSTICK_DESC_VERSION;
    description.type = static_cast<Uint16>(type);
    description.nbuttons = static_cast<Uint16>(buttons.size());
    description.naxes = static_cast<Uint16>(axes.size());
    for (const auto button : buttons) description.button_mask |= 1U << button;
    for (const auto axis : axes) description.axis_mask |= 1U << axis;
    description.name = name.c_str();
    onSdlThread([&] { ASSERT_GE(SDL_JoystickAttachVirtualEx(&description), 0) << SDL_GetError(); });
    queue_.run();
    return find(name);
  }

  /// Plugs in an arcade stick that SDL knows by `mappings` alone.
  void attachMapped(const std::vector<std::string>& mappings) {
    onSdlThread([&] {
      SDL_VirtualJoystickDesc description{};
      description.version = SDL_VIRTUAL_JOYSTICK_DESC_VERSION;
      description.type = SDL_JOYSTICK_TYPE_ARCADE_STICK;
      description.nbuttons = 2;
      description.nhats = 1;
      description.vendor_id = 0x1234;
      description.product_id = 0x5678;
      description.name = "Arcade";
      const int index = SDL_JoystickAttachVirtualEx(&description);
      ASSERT_GE(index, 0) << SDL_GetError();
      std::array<char, 33> guid{};
      SDL_JoystickGetGUIDString(SDL_JoystickGetDeviceGUID(index), guid.data(), static_cast<int>(guid.size()));
      for (const std::string& mapping : mappings) {
        const std::string entry = std::string(guid.data()) + "," + mapping;
        ASSERT_GE(SDL_GameControllerAddMapping(entry.c_str()), 0) << SDL_GetError();
      }
    });
    queue_.run();
  }

  const std::vector<SDL_GameControllerButton> microButtons{
      SDL_CONTROLLER_BUTTON_A,         SDL_CONTROLLER_BUTTON_X,         SDL_CONTROLLER_BUTTON_DPAD_UP,
      SDL_CONTROLLER_BUTTON_DPAD_DOWN, SDL_CONTROLLER_BUTTON_DPAD_LEFT, SDL_CONTROLLER_BUTTON_DPAD_RIGHT};
  const std::vector<SDL_GameControllerButton> requiredButtons{SDL_CONTROLLER_BUTTON_A,
                                                              SDL_CONTROLLER_BUTTON_B,
                                                              SDL_CONTROLLER_BUTTON_X,
                                                              SDL_CONTROLLER_BUTTON_Y,
                                                              SDL_CONTROLLER_BUTTON_START,
                                                              SDL_CONTROLLER_BUTTON_LEFTSHOULDER,
                                                              SDL_CONTROLLER_BUTTON_RIGHTSHOULDER,
                                                              SDL_CONTROLLER_BUTTON_DPAD_UP,
                                                              SDL_CONTROLLER_BUTTON_DPAD_DOWN,
                                                              SDL_CONTROLLER_BUTTON_DPAD_LEFT,
                                                              SDL_CONTROLLER_BUTTON_DPAD_RIGHT};
  const std::vector<SDL_GameControllerAxis> allAxes{
      SDL_CONTROLLER_AXIS_LEFTX,  SDL_CONTROLLER_AXIS_LEFTY,       SDL_CONTROLLER_AXIS_RIGHTX,
      SDL_CONTROLLER_AXIS_RIGHTY, SDL_CONTROLLER_AXIS_TRIGGERLEFT, SDL_CONTROLLER_AXIS_TRIGGERRIGHT};
};

TEST_F(Identification, APadIsCalledByItsNameAndType) {
  const auto pad = attach("Test Pad");
  ASSERT_NE(pad, nullptr);
  EXPECT_EQ(pad->vendorName(), "Test Pad");
  EXPECT_EQ(pad->productCategory(), "Virtual");
  EXPECT_EQ(pad->node(), "");
  EXPECT_EQ(pad->facts().profile, "extended");
}

TEST_F(Identification, TheFamiliesAreToldApartByTheirUsbNumbers) {
  EXPECT_EQ(attach("one", "045e 028e")->productCategory(), "Xbox 360");
  EXPECT_EQ(attach("two", "045e 02ea")->productCategory(), "Xbox One");
  EXPECT_EQ(attach("three", "054c 0268")->productCategory(), "DualShock 3");
  EXPECT_EQ(attach("four", "054c 09cc")->productCategory(), "DualShock 4");
  EXPECT_EQ(attach("five", "054c 0ce6")->productCategory(), "DualSense");
  EXPECT_EQ(attach("six", "057e 2009")->productCategory(), "Switch Pro Controller");
  EXPECT_EQ(attach("seven", "057e 2006")->productCategory(), "Joy-Con");
  EXPECT_EQ(attach("eight", "057e 2007")->productCategory(), "Joy-Con");
  EXPECT_EQ(attach("nine", "18d1 9400")->productCategory(), "Stadia");
  EXPECT_EQ(attach("ten", "1949 0419")->productCategory(), "Luna");
  EXPECT_EQ(attach("eleven", "0955 7214")->productCategory(), "Shield");
}

TEST_F(Identification, AFullPadOffersTheExtendedProfileWithEveryInput) {
  const auto pad = attach("full");
  ASSERT_NE(pad, nullptr);
  EXPECT_FALSE(pad->hasMicroGamepad());
  ASSERT_NE(pad->extendedGamepad(), nullptr);
  for (const GamepadButton button : allGamepadButtons()) {
    EXPECT_NE(pad->extendedGamepad()->input(button), nullptr) << rawValue(button);
  }
}

TEST_F(Identification, TheProfileLivesAsLongAsItsController) {
  auto pad = attach("full");
  const std::weak_ptr<ExtendedGamepad> profile = pad->extendedGamepad();
  play("detach full");
  queue_.run();
  EXPECT_FALSE(profile.expired());
  pad.reset();
  EXPECT_TRUE(profile.expired());
}

TEST_F(Identification, StickButtonsAndOptionsMayLack) {
  const auto pad = attachWith("lean", requiredButtons, allAxes);
  ASSERT_NE(pad, nullptr);
  const auto gamepad = pad->extendedGamepad();
  ASSERT_NE(gamepad, nullptr);
  EXPECT_EQ(gamepad->input(GamepadButton::leftThumbstick), nullptr);
  EXPECT_EQ(gamepad->input(GamepadButton::rightThumbstick), nullptr);
  EXPECT_EQ(gamepad->input(GamepadButton::options), nullptr);
  EXPECT_NE(gamepad->input(GamepadButton::menu), nullptr);
  EXPECT_NE(gamepad->input(GamepadButton::leftTrigger), nullptr);
}

TEST_F(Identification, WithoutAnyOneOfTheRequiredButtonsThereIsNoExtendedProfile) {
  for (const SDL_GameControllerButton missing : requiredButtons) {
    auto buttons = requiredButtons;
    std::erase(buttons, missing);
    const std::string name = std::string("no ") + SDL_GameControllerGetStringForButton(missing);
    const auto pad = attachWith(name, buttons, allAxes);
    ASSERT_NE(pad, nullptr) << name;
    EXPECT_EQ(pad->extendedGamepad(), nullptr) << name;
    const bool isMicro = std::find(microButtons.begin(), microButtons.end(), missing) == microButtons.end();
    EXPECT_EQ(pad->hasMicroGamepad(), isMicro) << name;
    EXPECT_EQ(pad->facts().profile, isMicro ? "micro" : "none") << name;
  }
}

TEST_F(Identification, WithoutAnyOneOfTheAxesThereIsTheMicroProfile) {
  for (const SDL_GameControllerAxis missing : allAxes) {
    auto axes = allAxes;
    std::erase(axes, missing);
    const std::string name = std::string("no ") + SDL_GameControllerGetStringForAxis(missing);
    const auto pad = attachWith(name, requiredButtons, axes);
    ASSERT_NE(pad, nullptr) << name;
    EXPECT_EQ(pad->facts().profile, "micro") << name;
  }
}

TEST_F(Identification, APadOfTwoButtonsAndADirectionalPadOffersTheMicroProfile) {
  const auto pad = attachWith("small", microButtons, {});
  ASSERT_NE(pad, nullptr);
  EXPECT_EQ(pad->extendedGamepad(), nullptr);
  EXPECT_TRUE(pad->hasMicroGamepad());
}

TEST_F(Identification, AMappingOfTheUsersMakesAPadOfAJoystick) {
  attachMapped({"Mapped,a:b0,x:b1,dpup:h0.1,dpdown:h0.4,dpleft:h0.8,dpright:h0.2,"});
  const auto pad = find("Mapped");
  ASSERT_NE(pad, nullptr);
  EXPECT_TRUE(pad->hasMicroGamepad());
  EXPECT_EQ(pad->extendedGamepad(), nullptr);
}

TEST_F(Identification, ButtonsGoByTheirPositionsNotByTheirLabels) {
  // The database has two mappings of a pad whose labels stand elsewhere, and SDL's setting chooses.
  attachMapped({"By Label,a:b1,b:b0,hint:SDL_GAMECONTROLLER_USE_BUTTON_LABELS:=1,",
                "By Position,a:b0,b:b1,hint:!SDL_GAMECONTROLLER_USE_BUTTON_LABELS:=1,"});
  EXPECT_NE(find("By Position"), nullptr);
  EXPECT_EQ(find("By Label"), nullptr);
}

TEST_F(Identification, AJoystickThatTheDatabaseDoesNotKnowIsListedWithoutAProfile) {
  const auto joystick = attachWith("Flight Stick", requiredButtons, allAxes, SDL_JOYSTICK_TYPE_FLIGHT_STICK);
  ASSERT_NE(joystick, nullptr);
  EXPECT_EQ(joystick->productCategory(), "Gamepad");
  EXPECT_EQ(joystick->extendedGamepad(), nullptr);
  EXPECT_FALSE(joystick->hasMicroGamepad());
  EXPECT_EQ(joystick->facts().profile, "none");
}

}  // namespace
}  // namespace vantorel::test
