#include "LocalizationManager.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Machine.h"

namespace vantorel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Localization : public ::testing::Test {
 protected:
  void prepare(const std::string& text) { machine.platform.userDefaults.prepareString("AppLanguage", text); }

  Machine machine;
};

TEST_F(Localization, BeginsInEnglishAndWritesNothing) {
  const LocalizationManager manager(machine.platform.userDefaults);
  EXPECT_EQ(manager.currentLanguage(), AppLanguage::english);
  EXPECT_THAT(machine.take(), IsEmpty());
}

TEST_F(Localization, RestoresTheSavedLanguageAndWritesItBack) {
  prepare("中文");
  const LocalizationManager manager(machine.platform.userDefaults);
  EXPECT_EQ(manager.currentLanguage(), AppLanguage::chinese);
  EXPECT_THAT(machine.take(), ElementsAre("defaults AppLanguage string 中文"));
}

TEST_F(Localization, LeavesATextThatNamesNoLanguage) {
  for (const char* text : {"en", "English", ""}) {
    prepare(text);
    const LocalizationManager manager(machine.platform.userDefaults);
    EXPECT_EQ(manager.currentLanguage(), AppLanguage::english);
    EXPECT_THAT(machine.take(), IsEmpty());
    EXPECT_EQ(machine.platform.userDefaults.string("AppLanguage"), text);
  }
}

TEST_F(Localization, IgnoresADataValue) {
  machine.platform.userDefaults.prepareData("AppLanguage", "中文");
  const LocalizationManager manager(machine.platform.userDefaults);
  EXPECT_EQ(manager.currentLanguage(), AppLanguage::english);
}

TEST_F(Localization, SavesAndTellsOfEveryChoiceAlsoOfTheCurrentLanguage) {
  LocalizationManager manager(machine.platform.userDefaults);
  int changes = 0;
  const Subscription subscription = manager.currentLanguage().observe([&] { ++changes; });
  manager.setCurrentLanguage(AppLanguage::english);
  manager.setCurrentLanguage(AppLanguage::chinese);
  EXPECT_EQ(changes, 2);
  EXPECT_THAT(machine.take(),
              ElementsAre("defaults AppLanguage string EN", "defaults AppLanguage string 中文"));
}

}  // namespace
}  // namespace vantorel::test
