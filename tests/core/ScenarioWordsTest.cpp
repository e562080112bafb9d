#include "ScenarioWords.h"

#include <gmock/gmock.h>

#include "Utf8.h"

namespace vantorel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::string wrongnessOf(std::string_view line) {
  try {
    scenarioWords(line);
  } catch (const WrongScenario& wrong) {
    return wrong.what;
  }
  return "nothing";
}

TEST(ScenarioWordsTest, AreSeparatedBySpacesAndTabs) {
  EXPECT_THAT(scenarioWords("one two\tthree \t four"), ElementsAre("one", "two", "three", "four"));
  EXPECT_THAT(scenarioWords(""), IsEmpty());
}

TEST(ScenarioWordsTest, HoldBlanksInQuotes) {
  EXPECT_THAT(scenarioWords("vendor \"Xbox  \tPad\" \"\" end"),
              ElementsAre("vendor", "Xbox  \tPad", "", "end"));
}

TEST(ScenarioWordsTest, KnowTwoEscapesInQuotes) {
  EXPECT_THAT(scenarioWords(R"("a\"b\\c" "\\")"), ElementsAre("a\"b\\c", "\\"));
  EXPECT_EQ(wrongnessOf(R"("a\nb")"), R"(only \" and \\ may follow a backslash in quotes)");
}

TEST(ScenarioWordsTest, TakeAQuoteWithinAWordAsItIs) {
  EXPECT_THAT(scenarioWords(R"(a"b c\n d")"), ElementsAre("a\"b", "c\\n", "d\""));
}

TEST(ScenarioWordsTest, RefuseAnUnclosedQuote) {
  EXPECT_EQ(wrongnessOf("file \"/a b"), "a quote is not closed");
  EXPECT_EQ(wrongnessOf("file \""), "a quote is not closed");
  EXPECT_EQ(wrongnessOf(R"(file "a\")"), "a quote is not closed");
  EXPECT_EQ(wrongnessOf("file \"a\\"), "a quote is not closed");
}

TEST(ScenarioWordsTest, RefuseTextRightAfterAClosingQuote) {
  EXPECT_EQ(wrongnessOf("\"a\"b"), "text right after a closing quote");
  EXPECT_EQ(wrongnessOf("\"a\"\"b\""), "text right after a closing quote");
}

TEST(ScenarioTrimmedTest, TakesBlanksAndOneCarriageReturnAway) {
  EXPECT_EQ(trimmed(" \ta b\t \r"), "a b");
  EXPECT_EQ(trimmed("a\r"), "a");
  EXPECT_EQ(trimmed("a\r\r"), "a\r");
  EXPECT_EQ(trimmed("\r"), "");
  EXPECT_EQ(trimmed(" \t "), "");
}

TEST(ScenarioUtf8Test, IsToldFromOtherBytes) {
  for (const char* text : {"", "abc", "é", "中文", "🎮", "\xED\x9F\xBF", "\xEE\x80\x80", "\xF4\x8F\xBF\xBF"}) {
    EXPECT_TRUE(isUtf8(text)) << text;
  }
  for (const char* bytes :
       {"\x80", "\xC3", "\xC0\x80", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80",
        "\xF5\x80\x80\x80", "\xE4\xB8", "\xC3(", "\xE4(\xAD", "\xE4\xB8("}) {
    EXPECT_FALSE(isUtf8(bytes)) << bytes;
  }
}

}  // namespace
}  // namespace vantorel
