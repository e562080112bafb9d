#include "AppLanguage.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

TEST(AppLanguage, ListsEnglishThenChinese) {
  EXPECT_EQ(allAppLanguages()[0], AppLanguage::english);
  EXPECT_EQ(allAppLanguages()[1], AppLanguage::chinese);
}

TEST(AppLanguage, IsStoredAndShownByItsOwnTexts) {
  EXPECT_EQ(rawValue(AppLanguage::english), "EN");
  EXPECT_EQ(rawValue(AppLanguage::chinese), "中文");
  EXPECT_EQ(displayName(AppLanguage::english), "English");
  EXPECT_EQ(displayName(AppLanguage::chinese), "简体中文");
}

TEST(AppLanguage, IsFoundByItsExactRawValueOnly) {
  EXPECT_EQ(appLanguage("EN"), AppLanguage::english);
  EXPECT_EQ(appLanguage("中文"), AppLanguage::chinese);
  for (const char* text : {"en", "English", "简体中文", "", "EN "})
    EXPECT_EQ(appLanguage(text), std::nullopt);
}

}  // namespace
}  // namespace vantorel
