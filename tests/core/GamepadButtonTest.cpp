#include "GamepadButton.h"

#include <gtest/gtest.h>

#include <set>

namespace vantorel {
namespace {

struct Row {
  GamepadButton button;
  const char* rawValue;
  const char* englishName;
  const char* chineseName;
};

const Row table[] = {
    {GamepadButton::buttonA, "buttonA", "A", "A"},
    {GamepadButton::buttonB, "buttonB", "B", "B"},
    {GamepadButton::buttonX, "buttonX", "X", "X"},
    {GamepadButton::buttonY, "buttonY", "Y", "Y"},
    {GamepadButton::leftShoulder, "leftShoulder", "L1 (LB)", "左肩键 (L1)"},
    {GamepadButton::rightShoulder, "rightShoulder", "R1 (RB)", "右肩键 (R1)"},
    {GamepadButton::leftTrigger, "leftTrigger", "L2 (LT)", "左扳机 (L2)"},
    {GamepadButton::rightTrigger, "rightTrigger", "R2 (RT)", "右扳机 (R2)"},
    {GamepadButton::leftThumbstick, "leftThumbstick", "LEFT_STICK", "左摇杆按下"},
    {GamepadButton::rightThumbstick, "rightThumbstick", "RIGHT_STICK", "右摇杆按下"},
    {GamepadButton::dpadUp, "dpadUp", "D-PAD_UP", "方向键上"},
    {GamepadButton::dpadDown, "dpadDown", "D-PAD_DOWN", "方向键下"},
    {GamepadButton::dpadLeft, "dpadLeft", "D-PAD_LEFT", "方向键左"},
    {GamepadButton::dpadRight, "dpadRight", "D-PAD_RIGHT", "方向键右"},
    {GamepadButton::menu, "menu", "MENU", "菜单键"},
    {GamepadButton::options, "options", "OPTIONS", "选项键"},
};

TEST(GamepadButton, StandsInTheListAtItsPosition) {
  ASSERT_EQ(std::size(table), gamepadButtonCount);
  for (std::size_t index = 0; index < gamepadButtonCount; ++index) {
    EXPECT_EQ(allGamepadButtons()[index], table[index].button);
    EXPECT_EQ(static_cast<std::size_t>(table[index].button), index);
  }
}

TEST(GamepadButton, HasItsNames) {
  for (const Row& row : table) {
    EXPECT_EQ(rawValue(row.button), row.rawValue);
    EXPECT_EQ(englishName(row.button), row.englishName);
    EXPECT_EQ(chineseName(row.button), row.chineseName);
    EXPECT_EQ(displayName(row.button, AppLanguage::english), row.englishName);
    EXPECT_EQ(displayName(row.button, AppLanguage::chinese), row.chineseName);
  }
}

TEST(GamepadButton, IsFoundByItsRawValue) {
  for (const Row& row : table) EXPECT_EQ(gamepadButton(row.rawValue), row.button);
}

TEST(GamepadButton, IsNotFoundByAnyOtherText) {
  for (const char* text : {"", "ButtonA", "BUTTONA", "buttona", "buttonA ", "A", "home"}) {
    EXPECT_EQ(gamepadButton(text), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace vantorel
