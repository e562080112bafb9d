#include "ButtonMapping.h"

#include <gtest/gtest.h>

#include <regex>

namespace vantorel {
namespace {

TEST(ButtonMapping, GetsAFreshIdentifierEachTime) {
  const ButtonMapping first(GamepadButton::buttonA, KeyboardKey::space);
  const ButtonMapping second(GamepadButton::buttonA, KeyboardKey::space);
  EXPECT_FALSE(first.id == second.id);
}

TEST(ButtonMapping, IsEqualByButtonAndKeyWhateverTheIdentifier) {
  const ButtonMapping mapping(GamepadButton::buttonA, KeyboardKey::space);
  EXPECT_EQ(mapping, ButtonMapping(GamepadButton::buttonA, KeyboardKey::space));
  EXPECT_FALSE(mapping == ButtonMapping(GamepadButton::buttonB, KeyboardKey::space));
  EXPECT_FALSE(mapping == ButtonMapping(GamepadButton::buttonA, KeyboardKey::tab));
}

TEST(ButtonMapping, IsWrittenCompactlyInOrderWithoutItsIdentifier) {
  EXPECT_EQ(
      toJson({{GamepadButton::buttonA, KeyboardKey::space}, {GamepadButton::menu, KeyboardKey::deleteKey}}),
      R"([{"gamepadButton":"buttonA","keyboardKey":"space"},{"gamepadButton":"menu","keyboardKey":"delete"}])");
  EXPECT_EQ(toJson({}), "[]");
}

TEST(ButtonMapping, ReadsBackEqualWithANewIdentifier) {
  const std::vector<ButtonMapping> written{{GamepadButton::buttonX, KeyboardKey::f12}};
  const auto read = buttonMappings(toJson(written));
  ASSERT_TRUE(read);
  EXPECT_EQ(*read, written);
  EXPECT_FALSE(read->front().id == written.front().id);
}

TEST(ButtonMapping, IgnoresOtherMembers) {
  const auto read =
      buttonMappings(R"([{"id":"something","keyboardKey":"space","gamepadButton":"buttonA","more":[1]}])");
  ASSERT_TRUE(read);
  EXPECT_EQ(*read, (std::vector<ButtonMapping>{{GamepadButton::buttonA, KeyboardKey::space}}));
}

class UnreadableList : public ::testing::TestWithParam<const char*> {};

TEST_P(UnreadableList, IsRefusedAsAWhole) { EXPECT_FALSE(buttonMappings(GetParam())) << GetParam(); }

INSTANTIATE_TEST_SUITE_P(
    ButtonMapping, UnreadableList,
    ::testing::Values(
        "", "[", "nothing", "{}", "null", "\"text\"", "[1]", "[null]", "[[]]", "[{}]",
        R"([{"gamepadButton":"buttonA"}])", R"([{"keyboardKey":"space"}])",
        R"([{"gamepadButton":"buttonA","keyboardKey":"enter"}])",
        R"([{"gamepadButton":"ButtonA","keyboardKey":"space"}])",
        R"([{"gamepadButton":"buttonA","keyboardKey":49}])",
        R"([{"gamepadButton":null,"keyboardKey":"space"}])",
        R"([{"gamepadButton":"buttonA","keyboardKey":"space"},{"gamepadButton":"buttonB","keyboardKey":"nine"}])",
        "[{\"gamepadButton\":\"buttonA\",\"keyboardKey\":\"\xff\"}]"));

TEST(ButtonMapping, ReadsAnEmptyList) {
  const auto read = buttonMappings(" [ ] ");
  ASSERT_TRUE(read);
  EXPECT_TRUE(read->empty());
}

TEST(Uuid, IsRandomOfVersionFour) {
  const std::string text = Uuid::random().toString();
  EXPECT_TRUE(std::regex_match(
      text, std::regex("[0-9a-f]{8}-[0-9a-f]{4}-4[0-9a-f]{3}-[89ab][0-9a-f]{3}-[0-9a-f]{12}")))
      << text;
}

}  // namespace
}  // namespace vantorel
