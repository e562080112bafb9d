#include "KeySections.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <string>

namespace vantorel {
namespace {

using testing::ElementsAre;

template <class Value>
std::vector<Value> ofEachSection(Value (*read)(const KeySection&)) {
  std::vector<Value> values;
  for (const KeySection& section : keySections()) values.push_back(read(section));
  return values;
}

/// The English names of the keys of section `number`, separated by blanks.
std::string keyNames(std::size_t number) {
  std::string names;
  for (const KeyboardKey key : keySections().at(number).keys) {
    names += (names.empty() ? "" : " ") + std::string(englishName(key));
  }
  return names;
}

TEST(KeySections, AreSixWithTitlesInBothLanguages) {
  EXPECT_THAT(ofEachSection<std::string_view>(
                  [](const KeySection& section) { return title(section, AppLanguage::english); }),
              ElementsAre("ACTION", "DPAD", "ALPHA_1", "ALPHA_2", "NUMERIC", "FUNCTION"));
  EXPECT_THAT(ofEachSection<std::string_view>(
                  [](const KeySection& section) { return title(section, AppLanguage::chinese); }),
              ElementsAre("动作", "方向键", "字母_1", "字母_2", "数字", "功能键"));
}

TEST(KeySections, HoldTheirKeysInOrder) {
  EXPECT_EQ(keyNames(0), "SPACE ENTER ESC TAB DELETE") << "here Tab comes before Delete";
  EXPECT_EQ(keyNames(1), "UP DOWN LEFT RIGHT");
  EXPECT_EQ(keyNames(2), "A B C D E F G H I J K L M");
  EXPECT_EQ(keyNames(3), "N O P Q R S T U V W X Y Z");
  EXPECT_EQ(keyNames(4), "0 1 2 3 4 5 6 7 8 9");
  EXPECT_EQ(keyNames(5), "F1 F2 F3 F4 F5 F6 F7 F8 F9 F10 F11 F12");
}

TEST(KeySections, HoldEveryKeyExactlyOnce) {
  std::multiset<KeyboardKey> held;
  for (const KeySection& section : keySections()) held.insert(section.keys.begin(), section.keys.end());
  EXPECT_THAT(held, testing::ElementsAreArray(allKeyboardKeys()));
}

TEST(KeySections, BreakIntoRowsAtTheirOwnCount) {
  EXPECT_THAT(ofEachSection<int>([](const KeySection& section) { return section.keysPerRow; }),
              ElementsAre(3, 4, 5, 5, 5, 6));
  EXPECT_THAT(ofEachSection<int>(rowCount), ElementsAre(2, 1, 3, 3, 2, 2));
}

}  // namespace
}  // namespace vantorel
