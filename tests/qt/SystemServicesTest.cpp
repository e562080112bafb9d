#include <gmock/gmock.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include "Descriptor.h"
#include "ProcessOutput.h"
#include "Roles.h"
#include "SystemClock.h"
#include "SystemFileManager.h"
#include "TemporaryDirectory.h"

namespace vantorel::test {
namespace {

using namespace std::chrono_literals;

TEST(SystemClockTest, TellsTheLocalTimeOfTheUsersZone) {
  const SystemClock clock;
  const auto hourIn = [&](const char* zone) {
    setenv("TZ", zone, 1);
    tzset();
    const std::string time = clock.localTime();
    unsetenv("TZ");
    tzset();
    EXPECT_THAT(time, testing::MatchesRegex("[0-2][0-9]:[0-5][0-9]:[0-6][0-9]"));
    return std::stoi(time.substr(0, 2));
  };
  // Asked for once more if the hour has just changed between the two questions.
  const auto difference = [&] { return (hourIn("EAST-5") - hourIn("UTC0") + 24) % 24; };
  EXPECT_TRUE(difference() == 5 || difference() == 5);
}

TEST(SystemClockTest, SleepsAsLongAsAsked) {
  SystemClock clock;
  const auto before = std::chrono::steady_clock::now();
  clock.sleep(30ms);
  EXPECT_GE(std::chrono::steady_clock::now() - before, 30ms);
}

TEST(SystemFileManagerTest, SeesFilesAndDirectories) {
  const TemporaryDirectory directory;
  const std::filesystem::path file = directory.path() / "文件";
  const SystemFileManager files;
  EXPECT_FALSE(files.fileExists(file));
  std::ofstream(file) << "x";
  EXPECT_TRUE(files.fileExists(file));
  EXPECT_TRUE(files.fileExists(directory.path()));
  EXPECT_FALSE(files.fileExists(file / "below"));
  EXPECT_FALSE(files.fileExists(""));
}

TEST(ProcessOutputTest, ALineIsOutWhenTheCallReturns) {
  std::array<int, 2> ends{};
  ASSERT_EQ(pipe(ends.data()), 0);
  const Descriptor readEnd(ends[0], "pipe");
  const Descriptor writeEnd(ends[1], "pipe");
  ProcessOutput output(writeEnd.number());
  output.writeLine("🎮 按下: B");
  std::array<char, 100> text{};
  const ssize_t count = read(readEnd.number(), text.data(), text.size());
  EXPECT_EQ(std::string(text.data(), static_cast<std::size_t>(count)), "🎮 按下: B\n");
}

TEST(ProcessOutputTest, LinesOfSeveralThreadsDoNotMix) {
  Process process(thisProgram(), {role::printLines});
  EXPECT_EQ(process.waitForExit(), 0);
  std::istringstream output(process.output());
  int count = 0;
  for (std::string line; std::getline(output, line); ++count) {
    ASSERT_FALSE(line.empty());
    ASSERT_EQ(line, std::string(300, line[0]));
  }
  EXPECT_EQ(count, 2000);
}

TEST(ProcessOutputTest, AReaderThatHasGoneDoesNotEndTheProgram) {
  std::array<int, 2> ends{};
  ASSERT_EQ(pipe(ends.data()), 0);
  const Descriptor writeEnd(ends[1], "pipe");
  close(ends[0]);
  ProcessOutput output(writeEnd.number());
  output.writeLine("nobody reads this");
  output.writeLine("nor this");
}

}  // namespace
}  // namespace vantorel::test
