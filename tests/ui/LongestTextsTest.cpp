#include "LongestTexts.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

TEST(LongestTexts, KeepsAllThatAreEquallyLong) {
  EXPECT_EQ(longestOf({"a", "abc", "ab", "xyz"}), QStringList({"abc", "xyz"}));
}

TEST(LongestTexts, TakesAChineseCharacterForWiderThanALetter) {
  EXPECT_EQ(longestOf({"abcd", "空格"}), QStringList("abcd"));
  EXPECT_EQ(longestOf({"abcde", "空格空"}), QStringList({"abcde", "空格空"}));
  EXPECT_EQ(longestOf({"abc", "空格", "Tab", "（）"}), QStringList({"空格", "（）"}));
}

TEST(LongestTexts, KeepsTheLongestOfEachLanguage) {
  const auto texts = [](AppLanguage language) {
    return language == AppLanguage::english ? QStringList{"Enter", "Tab"} : QStringList{"空格", "键"};
  };
  EXPECT_EQ(longestInEach(texts), QStringList({"Enter", "空格"}));
}

TEST(LongestTexts, HasNothingToKeepOfNothing) { EXPECT_EQ(longestOf({}), QStringList()); }

}  // namespace
}  // namespace vantorel
