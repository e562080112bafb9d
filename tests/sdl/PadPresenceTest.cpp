#include "PadPresence.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "TemporaryDirectory.h"

namespace vantorel::test {
namespace {

class PadPresence : public testing::Test {
 protected:
  PadPresence() {
    unsetenv("VANTOREL_VIRTUAL_PADS");
    unsetenv("SDL_JOYSTICK_DEVICE");
    unsetenv("SDL_JOYSTICK_DISABLE_UDEV");
    std::filesystem::create_directory(places.nodes);
  }

  void touch(const std::filesystem::path& path) { std::ofstream(path) << ""; }

  const TemporaryDirectory directory;
  PadPlaces places{.nodes = directory.path() / "input", .udevControl = directory.path() / "control"};
};

TEST_F(PadPresence, WithoutUdevNeedsAnEventNode) {
  EXPECT_FALSE(mayPadBeThere(places));
  touch(places.nodes / "mice");
  touch(places.nodes / "mouse0");
  EXPECT_FALSE(mayPadBeThere(places));
  touch(places.nodes / "event7");
  EXPECT_TRUE(mayPadBeThere(places));
}

TEST_F(PadPresence, WithoutUdevAndWithoutADirectoryOfNodesIsNone) {
  std::filesystem::remove(places.nodes);
  EXPECT_FALSE(mayPadBeThere(places));
}

TEST_F(PadPresence, WithUdevIsNotAskedOfTheNodes) {
  touch(places.udevControl);
  const bool doesUdevKnowOne = mayPadBeThere(places);
  std::filesystem::remove_all(places.nodes);
  EXPECT_EQ(mayPadBeThere(places), doesUdevKnowOne);
  std::filesystem::create_directory(places.nodes);
  touch(places.nodes / "event7");
  EXPECT_EQ(mayPadBeThere(places), doesUdevKnowOne);
}

TEST_F(PadPresence, IsAskedOfTheNodesWhereSdlIsToDoWithoutUdev) {
  touch(places.udevControl);
  setenv("SDL_JOYSTICK_DISABLE_UDEV", "1", 1);
  EXPECT_FALSE(mayPadBeThere(places));
  touch(places.nodes / "event7");
  EXPECT_TRUE(mayPadBeThere(places));
  unsetenv("SDL_JOYSTICK_DISABLE_UDEV");
}

TEST_F(PadPresence, FollowsFromAVariableThatNamesPads) {
  for (const char* const variable : {"VANTOREL_VIRTUAL_PADS", "SDL_JOYSTICK_DEVICE"}) {
    setenv(variable, "/dev/input/event7", 1);
    EXPECT_TRUE(mayPadBeThere(places)) << variable;
    unsetenv(variable);
    EXPECT_FALSE(mayPadBeThere(places)) << variable;
  }
}

TEST(MayBePad, WhatUdevCallsAJoystick) {
  EXPECT_TRUE(mayBePad({{"ID_INPUT", "1"}, {"ID_INPUT_JOYSTICK", "1"}}, "30027"));
  EXPECT_TRUE(mayBePad({{"ID_INPUT", "1"}, {"ID_INPUT_JOYSTICK", "1"}, {"ID_INPUT_KEY", "1"}}, "0"));
  EXPECT_TRUE(mayBePad({{"ID_CLASS", "joystick"}}, "0"));
}

TEST(MayBePad, NotWhatUdevCallsSomethingElse) {
  EXPECT_FALSE(mayBePad({{"ID_INPUT", "1"}, {"ID_INPUT_KEY", "1"}, {"ID_INPUT_KEYBOARD", "1"}}, "100000000"));
  EXPECT_FALSE(mayBePad({{"ID_INPUT", "1"}, {"ID_INPUT_TOUCHPAD", "1"}}, "660800011000003"));
  EXPECT_FALSE(mayBePad({{"ID_INPUT", "1"}, {"ID_INPUT_SWITCH", "1"}}, "0"));
}

TEST(MayBePad, WhatUdevHasNoClassForIfItHasAxes) {
  EXPECT_TRUE(mayBePad({}, "30027"));
  EXPECT_TRUE(mayBePad({}, "1000 0"));
  EXPECT_TRUE(mayBePad({{"ID_INPUT", "1"}, {"ID_INPUT_JOYSTICK", "0"}}, "30027"));
  EXPECT_FALSE(mayBePad({{"ID_INPUT", "1"}}, "0"));
  EXPECT_FALSE(mayBePad({}, "0 0"));
  EXPECT_TRUE(mayBePad({}, "")) << "when nothing is known of it";
}

}  // namespace
}  // namespace vantorel::test
