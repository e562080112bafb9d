// What the program answers to its arguments, without a display.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

#include "MessageBus.h"
#include "Process.h"
#include "TemporaryDirectory.h"

namespace vantorel::test {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

struct Result {
  int status;
  std::string output;
  std::string errors;
};

Result run(const std::vector<std::string>& arguments, std::vector<std::string> environment = {}) {
  environment.insert(environment.end(), {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"});
  Process process(VANTOREL_PROGRAM, arguments, environment);
  const auto status = process.waitForExit();
  return {status.value_or(-1), process.output(), process.errorOutput()};
}

std::ptrdiff_t lineCount(const std::string& text) { return std::count(text.begin(), text.end(), '\n'); }

class WrongArguments : public ::testing::TestWithParam<std::vector<std::string>> {};

TEST_P(WrongArguments, GiveOneLineAndStatusTwo) {
  const Result result = run(GetParam());
  EXPECT_EQ(result.status, 2);
  EXPECT_THAT(result.output, IsEmpty());
  EXPECT_THAT(result.errors, StartsWith("vantorel: "));
  EXPECT_EQ(lineCount(result.errors), 1) << result.errors;
}

using Arguments = std::vector<std::string>;
INSTANTIATE_TEST_SUITE_P(Command, WrongArguments,
                         ::testing::Values(Arguments{"--nonsense"}, Arguments{"word"}, Arguments{"--play"},
                                           Arguments{"--play", "a", "--demo"}, Arguments{"--mapping", "on"},
                                           Arguments{"--headless", "--mapping", "maybe"},
                                           Arguments{"--headless", "--thumbsticks"},
                                           Arguments{"--screenshot", "a.png"},
                                           Arguments{"--toggle", "--quit"},
                                           Arguments{"--headless", "--demo"}));

TEST(Command, HelpNamesEveryOption) {
  const Result result = run({"--help"});
  EXPECT_EQ(result.status, 0);
  for (const char* option : {"--play", "--demo", "--screenshot", "--headless", "--mapping", "--thumbsticks",
                             "--list-controllers", "--toggle", "--show", "--quit", "--version"}) {
    EXPECT_THAT(result.output, HasSubstr(option));
  }
  EXPECT_THAT(result.errors, IsEmpty());
}

TEST(Command, VersionIsOneLine) {
  const Result result = run({"--version"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.output, "vantorel " VANTOREL_VERSION "\n");
}

TEST(Command, AFileThatCannotBeReadGivesStatusTwo) {
  const Result result = run({"--play", "/nowhere/at.all"});
  EXPECT_EQ(result.status, 2);
  EXPECT_THAT(result.output, IsEmpty());
  EXPECT_EQ(result.errors, "vantorel: cannot read /nowhere/at.all\n");
}

TEST(Command, ADirectoryInPlaceOfAFileGivesStatusTwo) {
  const TemporaryDirectory directory;
  const Result result = run({"--play", directory.path()});
  EXPECT_EQ(result.status, 2);
  EXPECT_THAT(result.output, IsEmpty());
  EXPECT_EQ(result.errors, "vantorel: cannot read " + directory.path().string() + "\n");
}

TEST(Command, AnEmptyFileNameIsReportedAsSuch) {
  const Result result = run({"--play", ""});
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.errors, "vantorel: cannot read \"\"\n");
}

TEST(Command, AWrongLineIsFoundBeforeAnythingIsPlayed) {
  const TemporaryDirectory directory;
  const std::string file = directory.path() / "wrong.scenario";
  std::ofstream(file) << "launch\nwait 1s\nfly away\n";
  const Result result = run({"--play", file});
  EXPECT_EQ(result.status, 2);
  EXPECT_THAT(result.output, IsEmpty());
  EXPECT_THAT(result.errors, StartsWith(file + ":3: "));
}

TEST(Command, TheDemoPlaysToTheEndAndIsTheSameEachTime) {
  const Result first = run({"--demo"});
  const Result second = run({"--demo"});
  EXPECT_EQ(first.status, 0) << first.errors;
  EXPECT_THAT(first.output, HasSubstr("key down 53"));
  EXPECT_EQ(first.output, second.output);
}

TEST(Command, AScreenshotIsDrawnWithoutADisplay) {
  const TemporaryDirectory directory;
  const std::filesystem::path picture = directory.path() / "window.png";
  const std::filesystem::path file = directory.path() / "launch.scenario";
  std::ofstream(file) << "launch\nmapping on\n";
  const Result result = run({"--play", file, "--screenshot", picture});
  EXPECT_EQ(result.status, 0) << result.errors;
  std::ifstream stream(picture, std::ios::binary);
  std::string signature(8, '\0');
  stream.read(signature.data(), 8);
  EXPECT_EQ(signature, "\x89PNG\r\n\x1a\n");
}

TEST(Command, AScreenshotOfAProgramThatDoesNotRunIsRefused) {
  const TemporaryDirectory directory;
  const std::filesystem::path file = directory.path() / "quit.scenario";
  std::ofstream(file) << "launch\nquit\n";
  const Result result = run({"--play", file, "--screenshot", directory.path() / "window.png"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(lineCount(result.errors), 1) << result.errors;
}

TEST(Command, WithoutADisplayTheWindowSaysSo) {
  const Result result = run({});
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.errors, HasSubstr("display"));
  EXPECT_EQ(lineCount(result.errors), 1) << result.errors;
}

TEST(Command, WithoutADisplayHeadlessSaysSo) {
  const Result result = run({"--headless"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.errors, "vantorel: DISPLAY is not set\n");
}

TEST(Command, RemoteCommandsSayThatNothingRuns) {
  const MessageBus bus;
  for (const char* command : {"--toggle", "--show", "--quit"}) {
    const Result result = run({command}, {bus.environment()});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, "vantorel: it is not running\n");
  }
}

TEST(Command, RemoteCommandsSayThatThereIsNoSessionBus) {
  const Result result =
      run({"--toggle"}, {"DBUS_SESSION_BUS_ADDRESS=unix:path=/nowhere", "XDG_RUNTIME_DIR=/nowhere"});
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.errors, HasSubstr("session bus"));
}

TEST(Command, TheListNamesEachControllerWithItsFacts) {
  const TemporaryDirectory directory;
  const std::filesystem::path pads = directory.path() / "pads";
  std::ofstream(pads) << "attach \"Xbox Wireless Controller\" 045e 02ea\nattach pad\n";
  const Result result = run({"--list-controllers"}, {"VANTOREL_VIRTUAL_PADS=" + pads.string()});
  EXPECT_EQ(result.status, 0) << result.errors;
  EXPECT_THAT(result.output, HasSubstr("name: Xbox Wireless Controller  category: Xbox One  family: Xbox  "
                                       "profile: extended  node: -\n"));
  EXPECT_THAT(result.output,
              HasSubstr("name: pad  category: Virtual  family: Unknown  profile: extended  node: -\n"));
}

TEST(Command, WithoutControllersTheListSaysSo) {
  const Result result = run({"--list-controllers"});
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.output + result.errors, HasSubstr("controller"));
}

}  // namespace
}  // namespace vantorel::test
