#include "KeySections.h"

#include <cstddef>

namespace vantorel {
namespace {

/// The keys from `first` to `last` in declaration order, both included.
std::vector<KeyboardKey> keysBetween(KeyboardKey first, KeyboardKey last) {
  const auto& all = allKeyboardKeys();
  return {all.begin() + static_cast<std::ptrdiff_t>(first),
          all.begin() + static_cast<std::ptrdiff_t>(last) + 1};
}

}  // namespace

const std::vector<KeySection>& keySections() {
  using Key = KeyboardKey;
  static const std::vector<KeySection> sections = {
      {"ACTION", "动作", {Key::space, Key::returnKey, Key::escape, Key::tab, Key::deleteKey}, 3},
      {"DPAD", "方向键", keysBetween(Key::upArrow, Key::rightArrow), 4},
      {"ALPHA_1", "字母_1", keysBetween(Key::a, Key::m), 5},
      {"ALPHA_2", "字母_2", keysBetween(Key::n, Key::z), 5},
      {"NUMERIC", "数字", keysBetween(Key::num0, Key::num9), 5},
      {"FUNCTION", "功能键", keysBetween(Key::f1, Key::f12), 6},
  };
  return sections;
}

std::string_view title(const KeySection& section, AppLanguage language) {
  return language == AppLanguage::chinese ? section.chineseTitle : section.englishTitle;
}

int rowCount(const KeySection& section) {
  return (static_cast<int>(section.keys.size()) + section.keysPerRow - 1) / section.keysPerRow;
}

}  // namespace vantorel
