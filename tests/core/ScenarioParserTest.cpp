#include "ScenarioParser.h"

#include <gmock/gmock.h>

namespace vantorel {
namespace {

using namespace std::chrono_literals;

constexpr std::string_view pad = "device pad vendor \"Pad\" category Pad extended\n";

Scenario understood(std::string_view text) {
  auto parsed = parseScenario(text, "test");
  if (const auto* const error = std::get_if<ScenarioError>(&parsed)) {
    ADD_FAILURE() << error->message();
    return {};
  }
  return std::get<Scenario>(std::move(parsed));
}

/// The message about `text`, or an empty text if nothing is wrong with it.
std::string wrongnessOf(std::string_view text) {
  const auto parsed = parseScenario(text, "test.scenario");
  const auto* const error = std::get_if<ScenarioError>(&parsed);
  return error != nullptr ? error->message() : "";
}

/// The command of the only line of `text`, or of its last one.
template <class Kind, class Command>
Command lastCommand(std::string_view text) {
  return std::get<Command>(std::get<Kind>(understood(text).lines.back().command));
}

TEST(ScenarioParserTest, IgnoresBlankLinesAndComments) {
  EXPECT_TRUE(understood("").lines.empty());
  EXPECT_TRUE(understood("\n \t\n\r\n# comment\n   # \"comment\r\n#\n\t#\xFF").lines.empty());
}

TEST(ScenarioParserTest, TakesLinesWithAndWithoutCarriageReturnsAndAFinalNewline) {
  const Scenario scenario = understood("  launch \t\r\n\tshow\nquit");
  ASSERT_EQ(scenario.lines.size(), 3U);
  EXPECT_EQ(scenario.lines[0].text, "launch");
  EXPECT_EQ(scenario.lines[1].text, "show");
  EXPECT_EQ(scenario.lines[2].text, "quit");
}

TEST(ScenarioParserTest, DatesEachLineByTheWaitsAboveIt) {
  const Scenario scenario = understood("launch\nwait 50ms\nwait 0.5s\nshow\nquit\nwait 16.5ms\n");
  ASSERT_EQ(scenario.lines.size(), 3U);
  EXPECT_EQ(scenario.lines[0].due, 0ms);
  EXPECT_EQ(scenario.lines[1].due, 550ms);
  EXPECT_EQ(scenario.lines[2].due, 550ms);
  EXPECT_EQ(scenario.end, 566500us);
}

TEST(ScenarioParserTest, KeepsTheTextOfALineAsItStands) {
  EXPECT_EQ(understood("  menu \t \"Show Window\"  ").lines[0].text, "menu \t \"Show Window\"");
}

TEST(ScenarioParserTest, ReadsDevices) {
  const auto full = lastCommand<WorldCommand, DeclareDevice>(
      R"(device "my pad" vendor "Xbox \"One\"" category "Xbox One" extended without options leftThumbstick)");
  EXPECT_EQ(full.name, "my pad");
  EXPECT_EQ(full.description.vendorName, "Xbox \"One\"");
  EXPECT_EQ(full.description.productCategory, "Xbox One");
  EXPECT_EQ(full.description.profile, ControllerProfile::extended);
  EXPECT_EQ(full.description.missingButtons,
            (std::set{GamepadButton::options, GamepadButton::leftThumbstick}));
  const auto plain = lastCommand<WorldCommand, DeclareDevice>("device a novendor category \"\" micro");
  EXPECT_EQ(plain.description.vendorName, std::nullopt);
  EXPECT_EQ(plain.description.productCategory, "");
  EXPECT_EQ(plain.description.profile, ControllerProfile::micro);
  const auto standard = lastCommand<WorldCommand, DeclareDevice>("device a vendor \"\" category C standard");
  EXPECT_EQ(standard.description.vendorName, "");
  EXPECT_EQ(standard.description.profile, ControllerProfile::standard);
}

TEST(ScenarioParserTest, ReadsEveryButtonAndKey) {
  for (const GamepadButton button : allGamepadButtons()) {
    const auto press = lastCommand<WorldCommand, ChangeButton>(std::string(pad) + "press pad " +
                                                               std::string(rawValue(button)));
    EXPECT_EQ(press.button, button);
  }
  for (const KeyboardKey key : allKeyboardKeys()) {
    const auto pick = lastCommand<UserCommand, PickKey>("pick menu " + std::string(rawValue(key)));
    EXPECT_EQ(pick.key, key);
  }
}

TEST(ScenarioParserTest, ReadsNumbers) {
  const auto move = lastCommand<WorldCommand, MoveStick>(std::string(pad) + "stick pad right -1 0.15");
  EXPECT_EQ(move.stick, Stick::right);
  EXPECT_EQ(move.position.x, -1.0F);
  EXPECT_EQ(move.position.y, 0.15F);
  const auto cursor = lastCommand<WorldCommand, SetCursor>("cursor -3.5 100000");
  EXPECT_EQ(cursor.location, (Point{-3.5, 100000}));
  EXPECT_EQ((lastCommand<WorldCommand, SetHotKeyStatus>("fault hotkey -2147483648").status), INT32_MIN);
  EXPECT_EQ((lastCommand<UserCommand, MoveSlider>("joystick deadzone -0.5").value), -0.5);
}

TEST(ScenarioParserTest, ReadsTheThreeWaysToPick) {
  EXPECT_EQ((lastCommand<UserCommand, OpenPicker>("pick options").button), GamepadButton::options);
  EXPECT_EQ((lastCommand<UserCommand, CancelPicker>("pick options cancel").button), GamepadButton::options);
  EXPECT_EQ((lastCommand<UserCommand, PickKey>("pick options delete").key), KeyboardKey::deleteKey);
}

TEST(ScenarioParserTest, NamesTheFileAndTheLineOfTheFirstWrongLine) {
  EXPECT_EQ(wrongnessOf("launch\n\n# comment\n  jump\nquit now\n"),
            "test.scenario:4: there is no command \"jump\"");
  EXPECT_EQ(wrongnessOf("quit now\r\n"), "test.scenario:1: \"now\" is one word too many");
}

TEST(ScenarioParserTest, RefusesLinesThatAreNotUtf8) {
  EXPECT_EQ(wrongnessOf("file /\xFF"), "test.scenario:1: the line is not UTF-8");
}

TEST(ScenarioParserTest, RefusesWrongQuotes) {
  EXPECT_EQ(wrongnessOf("file \"a"), "test.scenario:1: a quote is not closed");
  EXPECT_EQ(wrongnessOf("menu \"Quit\"now"), "test.scenario:1: text right after a closing quote");
  EXPECT_EQ(wrongnessOf(R"(menu "\t")"),
            R"(test.scenario:1: only \" and \\ may follow a backslash in quotes)");
}

struct WrongLine {
  const char* line;
  const char* what;
};

class WrongLineTest : public testing::TestWithParam<WrongLine> {};

TEST_P(WrongLineTest, IsReported) {
  EXPECT_EQ(wrongnessOf(std::string(pad) + GetParam().line + "\nlaunch\n"),
            std::string("test.scenario:2: ") + GetParam().what);
}

INSTANTIATE_TEST_SUITE_P(
    Scenario, WrongLineTest,
    testing::Values(
        WrongLine{"\"\"", "there is no command \"\""}, WrongLine{"Launch", "there is no command \"Launch\""},
        WrongLine{"wait", "a time is missing"}, WrongLine{"wait 50", "\"50\" is not a time, as 50ms or 0.5s"},
        WrongLine{"wait -5ms", "\"-5ms\" is not a time, as 50ms or 0.5s"},
        WrongLine{"wait 5 ms", "\"5\" is not a time, as 50ms or 0.5s"},
        WrongLine{"wait 5ms 5ms", "\"5ms\" is one word too many"},
        WrongLine{"trust", "\"granted\" or \"denied\" is missing"},
        WrongLine{"trust maybe", "\"granted\" or \"denied\" is expected, not \"maybe\""},
        WrongLine{"file", "a path is missing"}, WrongLine{"file a b", "\"b\" is one word too many"},
        WrongLine{"defaults", "a key is missing"},
        WrongLine{"defaults key", "\"data\" or \"string\" is missing"},
        WrongLine{"defaults key text x", "\"data\" or \"string\" is expected, not \"text\""},
        WrongLine{"defaults key data", "a text is missing"},
        WrongLine{"defaults key data a b", "\"b\" is one word too many"}));

INSTANTIATE_TEST_SUITE_P(
    Device, WrongLineTest,
    testing::Values(
        WrongLine{"device", "a device's name is missing"},
        WrongLine{"device nothing novendor category C micro", "no device can be called \"nothing\""},
        WrongLine{"device pad novendor category C micro", "the device \"pad\" is declared already"},
        WrongLine{"device a", "\"vendor\" is missing"},
        WrongLine{"device a category C micro", "\"vendor\" is expected, not \"category\""},
        WrongLine{"device a vendor", "the vendor's name is missing"},
        WrongLine{"device a vendor V", "\"category\" is missing"},
        WrongLine{"device a novendor C micro", "\"category\" is expected, not \"C\""},
        WrongLine{"device a novendor category", "the category is missing"},
        WrongLine{"device a novendor category C", "a profile is missing"},
        WrongLine{"device a novendor category C big",
                  "\"extended\", \"micro\" or \"standard\" is expected, not \"big\""},
        WrongLine{"device a novendor category C extended without", "a button is missing"},
        WrongLine{"device a novendor category C extended without buttonA",
                  "a controller is never without \"buttonA\""},
        WrongLine{"device a novendor category C extended without wings", "there is no button \"wings\""},
        WrongLine{"device a novendor category C micro without options", "\"without\" is one word too many"},
        WrongLine{"device a novendor category C extended options", "\"options\" is one word too many"}));

INSTANTIATE_TEST_SUITE_P(
    Machine, WrongLineTest,
    testing::Values(WrongLine{"fault", "a fault is missing"},
                    WrongLine{"fault keyboard on", "there is no fault \"keyboard\""},
                    WrongLine{"fault key-down", "\"on\" or \"off\" is missing"},
                    WrongLine{"fault key-down yes", "\"on\" or \"off\" is expected, not \"yes\""},
                    WrongLine{"fault hotkey", "a number is missing"},
                    WrongLine{"fault hotkey on", "\"on\" is not a decimal number"},
                    WrongLine{"fault hotkey 1.5", "a status is a whole number of 32 bits"},
                    WrongLine{"fault hotkey 2147483648", "a status is a whole number of 32 bits"},
                    WrongLine{"cursor", "a number is missing"}, WrongLine{"cursor 1", "a number is missing"},
                    WrongLine{"cursor 1 1e3", "\"1e3\" is not a decimal number"},
                    WrongLine{"cursor 1 2 3", "\"3\" is one word too many"}));

INSTANTIATE_TEST_SUITE_P(
    Input, WrongLineTest,
    testing::Values(WrongLine{"plug", "a device's name is missing"},
                    WrongLine{"plug later", "there is no device \"later\" so far"},
                    WrongLine{"plug nothing now", "\"now\" is one word too many"},
                    WrongLine{"unplug nothing", "there is no device \"nothing\" so far"},
                    WrongLine{"press pad", "a button is missing"},
                    WrongLine{"press nothing buttonA", "there is no device \"nothing\" so far"},
                    WrongLine{"press pad ButtonA", "there is no button \"ButtonA\""},
                    WrongLine{"release pad a", "there is no button \"a\""},
                    WrongLine{"release later buttonA", "there is no device \"later\" so far"},
                    WrongLine{"stick later left 0 0", "there is no device \"later\" so far"},
                    WrongLine{"stick pad", "\"left\" or \"right\" is missing"},
                    WrongLine{"stick pad up 0 0", "\"left\" or \"right\" is expected, not \"up\""},
                    WrongLine{"stick pad left 0", "a stick value is missing"},
                    WrongLine{"stick pad left 0 x", "\"x\" is not a decimal number"},
                    WrongLine{"stick pad left 1.01 0", "the stick value 1.01 is outside -1..1"},
                    WrongLine{"stick pad left 0 -1.00000001", "the stick value -1.00000001 is outside -1..1"},
                    WrongLine{"hotkey now", "\"now\" is one word too many"}));

INSTANTIATE_TEST_SUITE_P(
    User, WrongLineTest,
    testing::Values(WrongLine{"launch now", "\"now\" is one word too many"},
                    WrongLine{"menu", "a title is missing"},
                    WrongLine{"menu Show Window", "\"Window\" is one word too many"},
                    WrongLine{"mapping", "\"on\" or \"off\" is missing"},
                    WrongLine{"mapping ON", "\"on\" or \"off\" is expected, not \"ON\""},
                    WrongLine{"menubar maybe", "\"on\" or \"off\" is expected, not \"maybe\""},
                    WrongLine{"joystick", "\"on\" or \"off\" is missing"},
                    WrongLine{"joystick mouse", "a number is missing"},
                    WrongLine{"joystick speed 3", "\"on\" or \"off\" is expected, not \"speed\""},
                    WrongLine{"joystick scroll fast", "\"fast\" is not a decimal number"},
                    WrongLine{"pick", "a button is missing"},
                    WrongLine{"pick escape", "there is no button \"escape\""},
                    WrongLine{"pick buttonA enter", "there is no key \"enter\""},
                    WrongLine{"pick buttonA space now", "\"now\" is one word too many"},
                    WrongLine{"language", "a language is missing"},
                    WrongLine{"language en", "there is no language \"en\""},
                    WrongLine{"show all", "\"all\" is one word too many"}));

TEST(ScenarioParserTest, RefusesADeviceUsedBeforeItsDeclaration) {
  EXPECT_EQ(wrongnessOf("plug pad\ndevice pad novendor category C micro"),
            "test.scenario:1: there is no device \"pad\" so far");
}

TEST(ScenarioParserTest, RefusesAScenarioOfMoreThanACentury) {
  EXPECT_EQ(wrongnessOf("wait 2000000000s\nwait 2000000000s\n"),
            "test.scenario:2: the scenario is longer than a hundred years");
}

}  // namespace
}  // namespace vantorel
