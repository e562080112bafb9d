#include "LinuxKeyCodes.h"

#include <gtest/gtest.h>

#include <set>

#include "KeyboardKey.h"

namespace vantorel::test {
namespace {

TEST(LinuxKeyCodes, GiveEveryKeyACodeOfItsOwn) {
  std::set<std::uint16_t> codes;
  for (const KeyboardKey key : allKeyboardKeys()) {
    const auto code = linuxKeyCode(keyCode(key));
    ASSERT_TRUE(code) << rawValue(key);
    codes.insert(*code);
  }
  EXPECT_EQ(codes.size(), keyboardKeyCount);
}

TEST(LinuxKeyCodes, NameTheSamePhysicalKey) {
  EXPECT_EQ(linuxKeyCode(keyCode(KeyboardKey::space)), 57);
  EXPECT_EQ(linuxKeyCode(keyCode(KeyboardKey::returnKey)), 28);
  EXPECT_EQ(linuxKeyCode(keyCode(KeyboardKey::escape)), 1);
  EXPECT_EQ(linuxKeyCode(keyCode(KeyboardKey::deleteKey)), 14);
  EXPECT_EQ(linuxKeyCode(keyCode(KeyboardKey::tab)), 15);
  EXPECT_EQ(linuxKeyCode(keyCode(KeyboardKey::upArrow)), 103);
  EXPECT_EQ(linuxKeyCode(keyCode(KeyboardKey::a)), 30);
  EXPECT_EQ(linuxKeyCode(keyCode(KeyboardKey::m)), 50);
  EXPECT_EQ(linuxKeyCode(keyCode(KeyboardKey::z)), 44);
  EXPECT_EQ(linuxKeyCode(keyCode(KeyboardKey::num0)), 11);
  EXPECT_EQ(linuxKeyCode(keyCode(KeyboardKey::num5)), 6);
  EXPECT_EQ(linuxKeyCode(keyCode(KeyboardKey::num6)), 7);
  EXPECT_EQ(linuxKeyCode(keyCode(KeyboardKey::f1)), 59);
  EXPECT_EQ(linuxKeyCode(keyCode(KeyboardKey::f11)), 87);
  EXPECT_EQ(linuxKeyCode(keyCode(KeyboardKey::f12)), 88);
}

TEST(LinuxKeyCodes, KnowNothingOfOtherKeys) {
  EXPECT_FALSE(linuxKeyCode(10));
  EXPECT_FALSE(linuxKeyCode(0xffff));
}

}  // namespace
}  // namespace vantorel::test
