#include "KeyboardKey.h"

#include <algorithm>

namespace vantorel {
namespace {

struct KeyFacts {
  std::string_view rawValue;
  std::string_view englishName;
  std::string_view chineseName;
  std::uint16_t keyCode;
};

/// Indexed by the key's value.
constexpr std::array<KeyFacts, keyboardKeyCount> facts{{
    {"space", "SPACE", "空格", 49},
    {"returnKey", "ENTER", "回车", 36},
    {"escape", "ESC", "ESC", 53},
    {"delete", "DELETE", "删除", 51},
    {"tab", "TAB", "Tab", 48},
    {"upArrow", "UP", "↑", 126},
    {"downArrow", "DOWN", "↓", 125},
    {"leftArrow", "LEFT", "←", 123},
    {"rightArrow", "RIGHT", "→", 124},
    {"a", "A", "A", 0},
    {"b", "B", "B", 11},
    {"c", "C", "C", 8},
    {"d", "D", "D", 2},
    {"e", "E", "E", 14},
    {"f", "F", "F", 3},
    {"g", "G", "G", 5},
    {"h", "H", "H", 4},
    {"i", "I", "I", 34},
    {"j", "J", "J", 38},
    {"k", "K", "K", 40},
    {"l", "L", "L", 37},
    {"m", "M", "M", 46},
    {"n", "N", "N", 45},
    {"o", "O", "O", 31},
    {"p", "P", "P", 35},
    {"q", "Q", "Q", 12},
    {"r", "R", "R", 15},
    {"s", "S", "S", 1},
    {"t", "T", "T", 17},
    {"u", "U", "U", 32},
    {"v", "V", "V", 9},
    {"w", "W", "W", 13},
    {"x", "X", "X", 7},
    {"y", "Y", "Y", 16},
    {"z", "Z", "Z", 6},
    {"num0", "0", "0", 29},
    {"num1", "1", "1", 18},
    {"num2", "2", "2", 19},
    {"num3", "3", "3", 20},
    {"num4", "4", "4", 21},
    {"num5", "5", "5", 23},
    {"num6", "6", "6", 22},
    {"num7", "7", "7", 26},
    {"num8", "8", "8", 28},
    {"num9", "9", "9", 25},
    {"f1", "F1", "F1", 122},
    {"f2", "F2", "F2", 120},
    {"f3", "F3", "F3", 99},
    {"f4", "F4", "F4", 118},
    {"f5", "F5", "F5", 96},
    {"f6", "F6", "F6", 97},
    {"f7", "F7", "F7", 98},
    {"f8", "F8", "F8", 100},
    {"f9", "F9", "F9", 101},
    {"f10", "F10", "F10", 109},
    {"f11", "F11", "F11", 103},
    {"f12", "F12", "F12", 111},
}};

const KeyFacts& factsOf(KeyboardKey key) { return facts.at(static_cast<std::size_t>(key)); }

}  // namespace

const std::array<KeyboardKey, keyboardKeyCount>& allKeyboardKeys() {
  static const auto all = [] {
    std::array<KeyboardKey, keyboardKeyCount> keys{};
    for (std::size_t index = 0; index < keys.size(); ++index) keys[index] = static_cast<KeyboardKey>(index);
    return keys;
  }();
  return all;
}

std::string_view rawValue(KeyboardKey key) { return factsOf(key).rawValue; }

std::optional<KeyboardKey> keyboardKey(std::string_view rawValue) {
  const auto* const found = std::find_if(facts.begin(), facts.end(),
                                         [&](const KeyFacts& entry) { return entry.rawValue == rawValue; });
  if (found == facts.end()) return std::nullopt;
  return static_cast<KeyboardKey>(found - facts.begin());
}

std::string_view englishName(KeyboardKey key) { return factsOf(key).englishName; }

std::string_view chineseName(KeyboardKey key) { return factsOf(key).chineseName; }

std::string_view displayName(KeyboardKey key, AppLanguage language) {
  return language == AppLanguage::chinese ? chineseName(key) : englishName(key);
}

std::uint16_t keyCode(KeyboardKey key) { return factsOf(key).keyCode; }

}  // namespace vantorel
