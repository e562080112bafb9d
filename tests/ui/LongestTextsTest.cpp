#include "LongestTexts.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

TEST(LongestTexts, KeepsAllThatAreEquallyLong) {
  EXPECT_EQ(longestOf({"a", "abc", "ab", "xyz"}), QStringList({"abc", "xyz"}));
}

TEST(LongestTexts, CountsChineseCharactersTwice) {
  EXPECT_EQ(longestOf({"abc", "空格", "Tab", "（）"}), QStringList({"空格", "（）"}));
}

TEST(LongestTexts, HasNothingToKeepOfNothing) { EXPECT_EQ(longestOf({}), QStringList()); }

}  // namespace
}  // namespace vantorel
