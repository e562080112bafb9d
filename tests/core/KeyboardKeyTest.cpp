#include "KeyboardKey.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace vantorel {
namespace {

TEST(KeyboardKey, StandsInTheListAtItsPosition) {
  for (std::size_t index = 0; index < keyboardKeyCount; ++index) {
    EXPECT_EQ(static_cast<std::size_t>(allKeyboardKeys()[index]), index);
  }
  EXPECT_EQ(static_cast<std::size_t>(KeyboardKey::space), 0U);
  EXPECT_EQ(static_cast<std::size_t>(KeyboardKey::a), 9U);
  EXPECT_EQ(static_cast<std::size_t>(KeyboardKey::num0), 35U);
  EXPECT_EQ(static_cast<std::size_t>(KeyboardKey::f1), 45U);
  EXPECT_EQ(static_cast<std::size_t>(KeyboardKey::f12), 56U);
}

TEST(KeyboardKey, HasTheNamesOfTheSpecialKeys) {
  struct Row {
    KeyboardKey key;
    const char* rawValue;
    const char* englishName;
    const char* chineseName;
    int code;
  };
  const Row rows[] = {
      {KeyboardKey::space, "space", "SPACE", "空格", 49},
      {KeyboardKey::returnKey, "returnKey", "ENTER", "回车", 36},
      {KeyboardKey::escape, "escape", "ESC", "ESC", 53},
      {KeyboardKey::deleteKey, "delete", "DELETE", "删除", 51},
      {KeyboardKey::tab, "tab", "TAB", "Tab", 48},
      {KeyboardKey::upArrow, "upArrow", "UP", "↑", 126},
      {KeyboardKey::downArrow, "downArrow", "DOWN", "↓", 125},
      {KeyboardKey::leftArrow, "leftArrow", "LEFT", "←", 123},
      {KeyboardKey::rightArrow, "rightArrow", "RIGHT", "→", 124},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(rawValue(row.key), row.rawValue);
    EXPECT_EQ(englishName(row.key), row.englishName);
    EXPECT_EQ(chineseName(row.key), row.chineseName);
    EXPECT_EQ(displayName(row.key, AppLanguage::english), row.englishName);
    EXPECT_EQ(displayName(row.key, AppLanguage::chinese), row.chineseName);
    EXPECT_EQ(keyCode(row.key), row.code);
    EXPECT_EQ(keyboardKey(row.rawValue), row.key);
  }
}

/// Checks `count` keys from `first` on, whose raw value is `rawPrefix` with a letter or number from `names`.
void expectRow(KeyboardKey first, const std::vector<std::string>& rawValues,
               const std::vector<std::string>& names, const std::vector<int>& codes) {
  ASSERT_EQ(rawValues.size(), codes.size());
  for (std::size_t index = 0; index < codes.size(); ++index) {
    const KeyboardKey key = allKeyboardKeys().at(static_cast<std::size_t>(first) + index);
    EXPECT_EQ(rawValue(key), rawValues[index]);
    EXPECT_EQ(englishName(key), names[index]);
    EXPECT_EQ(chineseName(key), names[index]);
    EXPECT_EQ(keyCode(key), codes[index]) << names[index];
    EXPECT_EQ(keyboardKey(rawValues[index]), key);
  }
}

TEST(KeyboardKey, LettersHaveTheCodesOfAnAnsiKeyboard) {
  std::vector<std::string> raw;
  std::vector<std::string> names;
  for (char letter = 'a'; letter <= 'z'; ++letter) {
    raw.emplace_back(1, letter);
    names.emplace_back(1, static_cast<char>(letter - 'a' + 'A'));
  }
  expectRow(KeyboardKey::a, raw, names,
            {0, 11, 8, 2, 14, 3, 5, 4, 34, 38, 40, 37, 46, 45, 31, 35, 12, 15, 1, 17, 32, 9, 13, 7, 16, 6});
}

TEST(KeyboardKey, DigitsAreThoseOfTheTopRow) {
  std::vector<std::string> raw;
  std::vector<std::string> names;
  for (int digit = 0; digit <= 9; ++digit) {
    raw.push_back("num" + std::to_string(digit));
    names.push_back(std::to_string(digit));
  }
  expectRow(KeyboardKey::num0, raw, names, {29, 18, 19, 20, 21, 23, 22, 26, 28, 25});
}

TEST(KeyboardKey, FunctionKeysHaveTheirCodes) {
  std::vector<std::string> raw;
  std::vector<std::string> names;
  for (int number = 1; number <= 12; ++number) {
    raw.push_back("f" + std::to_string(number));
    names.push_back("F" + std::to_string(number));
  }
  expectRow(KeyboardKey::f1, raw, names, {122, 120, 99, 118, 96, 97, 98, 100, 101, 109, 103, 111});
}

TEST(KeyboardKey, HasACodeOfItsOwn) {
  std::set<std::uint16_t> codes;
  for (const KeyboardKey key : allKeyboardKeys()) codes.insert(keyCode(key));
  EXPECT_EQ(codes.size(), keyboardKeyCount);
}

TEST(KeyboardKey, IsNotFoundByAnyOtherText) {
  for (const char* text : {"", "enter", "Space", "A", "deleteKey", "num10", "f13", "0"}) {
    EXPECT_EQ(keyboardKey(text), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace vantorel
