// Each scenario of this directory gives the transcript beside it, byte for byte.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <vector>

#include "Play.h"

namespace vantorel {
namespace {

namespace fs = std::filesystem;

const fs::path directory = fs::path(VANTOREL_SOURCE_DIR) / "tests" / "scenarios";

std::vector<fs::path> filesWith(const std::string& extension) {
  std::vector<fs::path> files;
  for (const auto& entry : fs::directory_iterator(directory)) {
    if (entry.path().extension() == extension) files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  return files;
}

std::string contentOf(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  EXPECT_TRUE(stream) << file << " cannot be read";
  return {std::istreambuf_iterator<char>(stream), {}};
}

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

/// Where two transcripts part, for people.
std::string firstDifference(const std::string& expected, const std::string& actual) {
  const auto left = linesOf(expected);
  const auto right = linesOf(actual);
  const auto [from, to] = std::mismatch(left.begin(), left.end(), right.begin(), right.end());
  const auto shown = [](auto line, auto end) { return line == end ? "(the end)" : "\"" + *line + "\""; };
  return "line " + std::to_string(from - left.begin() + 1) + " should be\n  " + shown(from, left.end()) +
         "\nbut is\n  " + shown(to, right.end());
}

std::string testName(const testing::TestParamInfo<fs::path>& info) {
  std::string name = info.param.stem().string();
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
}

class TranscriptTest : public testing::TestWithParam<fs::path> {};

TEST_P(TranscriptTest, IsAsExpected) {
  const fs::path& file = GetParam();
  const std::string expected = contentOf(fs::path(file).replace_extension(".transcript"));
  const std::string actual = transcriptOf(contentOf(file), file.filename().string());
  if (actual != expected) ADD_FAILURE() << file.filename() << ": " << firstDifference(expected, actual);
}

TEST_P(TranscriptTest, IsTheSameEveryTime) {
  const std::string scenario = contentOf(GetParam());
  EXPECT_EQ(transcriptOf(scenario, "first"), transcriptOf(scenario, "second"));
}

INSTANTIATE_TEST_SUITE_P(Scenario, TranscriptTest, testing::ValuesIn(filesWith(".scenario")), testName);

TEST(TranscriptsTest, AllBelongToAScenario) {
  for (const fs::path& transcript : filesWith(".transcript")) {
    EXPECT_TRUE(fs::exists(fs::path(transcript).replace_extension(".scenario"))) << transcript;
  }
}

}  // namespace
}  // namespace vantorel
