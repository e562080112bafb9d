#include "SettingsFile.h"

#include <gmock/gmock.h>

#include <fstream>
#include <random>
#include <set>
#include <sstream>
#include <thread>

#include "Roles.h"
#include "TemporaryDirectory.h"

namespace vantorel::test {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::IsEmpty;

void write(const fs::path& path, const std::string& bytes) { std::ofstream(path, std::ios::binary) << bytes; }

std::string read(const fs::path& path) {
  std::ostringstream text;
  text << std::ifstream(path, std::ios::binary).rdbuf();
  return text.str();
}

std::set<std::string> namesIn(const fs::path& directory) {
  std::set<std::string> names;
  for (const auto& entry : fs::directory_iterator(directory)) names.insert(entry.path().filename());
  return names;
}

/// What `action` writes on standard error.
template <class Action>
std::string errorsOf(Action action) {
  testing::internal::CaptureStderr();
  action();
  return testing::internal::GetCapturedStderr();
}

class SettingsFileTest : public testing::Test {
 protected:
  /// The settings as a new start of the program finds them.
  SettingsFile reopened() const { return SettingsFile(path); }

  const TemporaryDirectory directory;
  const fs::path path = directory.path() / "vantorel" / "settings.json";
};

TEST_F(SettingsFileTest, LiesUnderTheUsersConfigurationDirectory) {
  setenv("XDG_CONFIG_HOME", directory.path().c_str(), 1);
  EXPECT_EQ(SettingsFile::defaultPath(), directory.path() / "vantorel" / "settings.json");
  unsetenv("XDG_CONFIG_HOME");
}

TEST_F(SettingsFileTest, HoldsNothingBeforeTheFirstValueAndSaysNothing) {
  const std::string errors = errorsOf([&] {
    const SettingsFile settings(path);
    EXPECT_EQ(settings.data("key"), std::nullopt);
    EXPECT_EQ(settings.string("key"), std::nullopt);
  });
  EXPECT_THAT(errors, IsEmpty());
  EXPECT_FALSE(fs::exists(path));
}

TEST_F(SettingsFileTest, ValuesOutlastTheProgram) {
  {
    SettingsFile settings(path);
    settings.setString("language", "中文");
    settings.setData("list", R"([{"button":"buttonA"}])");
    EXPECT_EQ(settings.string("language"), "中文");
  }
  EXPECT_EQ(reopened().string("language"), "中文");
  EXPECT_EQ(reopened().data("list"), R"([{"button":"buttonA"}])");
}

TEST_F(SettingsFileTest, EveryByteOfDataIsKept) {
  std::string bytes;
  for (int byte = 255; byte >= 0; --byte) bytes += static_cast<char>(byte);
  SettingsFile(path).setData("bytes", bytes + bytes);
  EXPECT_EQ(reopened().data("bytes"), bytes + bytes);
}

TEST_F(SettingsFileTest, EmptyValuesAreValues) {
  SettingsFile settings(path);
  settings.setData("data", "");
  settings.setString("text", "");
  EXPECT_EQ(reopened().data("data"), "");
  EXPECT_EQ(reopened().string("text"), "");
}

TEST_F(SettingsFileTest, KeysMayBeAnyText) {
  const std::vector<std::string> keys{"", "a/b", "a\\b", "General", "键=1", "[x]", "%41", "A", "a", " "};
  {
    SettingsFile settings(path);
    for (const std::string& key : keys) settings.setString(key, "value of " + key);
  }
  for (const std::string& key : keys) EXPECT_EQ(reopened().string(key), "value of " + key);
}

TEST_F(SettingsFileTest, WhoAsksForOneKindDoesNotFindTheOther) {
  SettingsFile settings(path);
  settings.setData("data", "bytes");
  settings.setString("text", "words");
  EXPECT_EQ(settings.string("data"), std::nullopt);
  EXPECT_EQ(settings.data("text"), std::nullopt);
}

TEST_F(SettingsFileTest, AValueReplacesTheOneOfTheOtherKind) {
  SettingsFile settings(path);
  settings.setData("key", "bytes");
  settings.setString("key", "words");
  EXPECT_EQ(reopened().data("key"), std::nullopt);
  EXPECT_EQ(reopened().string("key"), "words");
  settings.setData("key", "bytes");
  EXPECT_EQ(reopened().data("key"), "bytes");
  EXPECT_EQ(reopened().string("key"), std::nullopt);
}

TEST_F(SettingsFileTest, WhatAnotherVersionKeepsInTheFileStays) {
  fs::create_directories(path.parent_path());
  write(path, R"({"text": {"key": "old"}, "windows": [1, 2]})");
  SettingsFile(path).setString("key", "new");
  EXPECT_THAT(read(path), HasSubstr("windows"));
  EXPECT_EQ(reopened().string("key"), "new");
}

TEST_F(SettingsFileTest, ALinkToTheFileStaysALink) {
  const fs::path target = directory.path() / "elsewhere.json";
  fs::create_directories(path.parent_path());
  fs::create_symlink(target, path);
  SettingsFile(path).setString("key", "first");
  SettingsFile(path).setString("key", "second");
  EXPECT_TRUE(fs::is_symlink(path));
  EXPECT_EQ(SettingsFile(target).string("key"), "second");
}

/// Files that are not, or not wholly, what the program has written.
class DamagedSettingsTest : public SettingsFileTest, public testing::WithParamInterface<std::string> {};

TEST_P(DamagedSettingsTest, MeanNoValueAreKeptAsideAndReported) {
  fs::create_directories(path.parent_path());
  write(path, GetParam());
  const std::string errors = errorsOf([&] {
    SettingsFile settings(path);
    EXPECT_EQ(settings.data("key"), std::nullopt);
    EXPECT_EQ(settings.string("key"), std::nullopt);
    settings.setString("key", "new");
  });
  const fs::path copy = path.string() + ".damaged";
  EXPECT_EQ(read(copy), GetParam());
  EXPECT_THAT(errors, HasSubstr(path.string() + " cannot be read (damaged)"));
  EXPECT_THAT(errors, HasSubstr("kept as " + copy.string()));
  EXPECT_EQ(std::count(errors.begin(), errors.end(), '\n'), 1);
  EXPECT_EQ(reopened().string("key"), "new");
}

INSTANTIATE_TEST_SUITE_P(Files, DamagedSettingsTest,
                         testing::Values("", std::string(100, '\0'), "\xff\xfe rubbish",
                                         R"({"text": {"key": "old"})", R"({"text": {"key": "old"}} more)",
                                         "{\"text\": {\"key\": \"\xff\"}}", "[]", R"({"text": []})",
                                         R"({"text": {"key": 1}})", R"({"data": {"key": "YQ=x"}})",
                                         R"({"data": {"key": true}})", "[data]\nkey=value\n"));

TEST_F(SettingsFileTest, EveryTruncationIsDamage) {
  SettingsFile(path).setData("key", "bytes");
  const std::string whole = read(path);
  const std::size_t end = whole.find_last_not_of('\n');
  for (std::size_t length = 0; length <= end; ++length) {
    write(path, whole.substr(0, length));
    const std::string errors = errorsOf([&] { EXPECT_EQ(SettingsFile(path).data("key"), std::nullopt); });
    EXPECT_THAT(errors, HasSubstr("damaged"));
  }
}

TEST_F(SettingsFileTest, ADamagedFileDoesNotReplaceOneKeptAsideBefore) {
  fs::create_directories(path.parent_path());
  const std::string errors = errorsOf([&] {
    for (const char* bytes : {"first", "second", "third"}) {
      write(path, bytes);
      const SettingsFile settings(path);
    }
  });
  EXPECT_EQ(read(path.string() + ".damaged"), "first");
  EXPECT_EQ(read(path.string() + ".damaged2"), "second");
  EXPECT_EQ(read(path.string() + ".damaged3"), "third");
  EXPECT_EQ(std::count(errors.begin(), errors.end(), '\n'), 3);
}

TEST_F(SettingsFileTest, WhatCannotBeReadIsKeptAsideAsWell) {
  fs::create_directories(path / "a directory in place of the file");
  const std::string errors = errorsOf([&] { SettingsFile(path).setString("key", "value"); });
  EXPECT_TRUE(fs::is_directory(path.string() + ".damaged"));
  EXPECT_THAT(errors, HasSubstr("cannot be read"));
  EXPECT_EQ(reopened().string("key"), "value");
}

TEST_F(SettingsFileTest, WhatCannotBeKeptAsideIsNotWrittenOver) {
  const fs::path longName = directory.path() / std::string(250, 'x');  // with an ending it is too long
  write(longName, "damaged");
  const std::string errors = errorsOf([&] {
    SettingsFile settings(longName);
    settings.setString("key", "value");
    EXPECT_EQ(settings.string("key"), "value");
  });
  EXPECT_EQ(read(longName), "damaged");
  EXPECT_THAT(errors, HasSubstr("will save none"));
  EXPECT_EQ(std::count(errors.begin(), errors.end(), '\n'), 1);
}

TEST_F(SettingsFileTest, ADirectoryThatCannotBeWrittenIsReportedOnceAndTheProgramGoesOn) {
  write(directory.path() / "vantorel", "a file in place of the directory");
  const std::string errors = errorsOf([&] {
    SettingsFile settings(path);
    settings.setString("key", "value");
    settings.setData("list", "bytes");
    EXPECT_EQ(settings.string("key"), "value");
    EXPECT_EQ(settings.data("list"), "bytes");
  });
  EXPECT_THAT(errors, HasSubstr("cannot be saved in " + path.string()));
  EXPECT_EQ(std::count(errors.begin(), errors.end(), '\n'), 1);
}

TEST_F(SettingsFileTest, KillingTheProgramAtAnyMomentLeavesTheOldOrTheNewListWhole) {
  constexpr int kills = 300;
  std::mt19937 random(1);
  std::uniform_int_distribution<int> microseconds(0, 3000);
  int oldLists = 0;
  for (int i = 0; i < kills; ++i) {
    {
      Process writer(thisProgram(), {role::writeSettings, path.string()});
      ASSERT_TRUE(waitUntil([&] { return !writer.output().empty() || !writer.isRunning(); }));
      ASSERT_TRUE(writer.isRunning()) << writer.errorOutput();
      std::this_thread::sleep_for(std::chrono::microseconds(microseconds(random)));
      writer.signal(SIGKILL);
      ASSERT_EQ(writer.waitForExit(), 128 + SIGKILL);
    }
    const auto list = reopened().data("list");
    ASSERT_TRUE(list == oldList() || list == newList());
    oldLists += list == oldList() ? 1 : 0;
  }
  EXPECT_GT(oldLists, 0);
  EXPECT_LT(oldLists, kills);
  EXPECT_THAT(namesIn(path.parent_path()), testing::ElementsAre("settings.json"));
}

}  // namespace
}  // namespace vantorel::test
