#pragma once

#include <string_view>
#include <vector>

#include "AppLanguage.h"
#include "KeyboardKey.h"

namespace vantorel {

/// A group of keys under one heading in the key picker.
struct KeySection {
  std::string_view englishTitle;
  std::string_view chineseTitle;
  std::vector<KeyboardKey> keys;
  int keysPerRow;
};

/// The groups of the key picker from top to bottom; every key stands in exactly one.
const std::vector<KeySection>& keySections();

/// The title that the interface shows in `language`.
std::string_view title(const KeySection& section, AppLanguage language);

/// The number of rows that the keys of `section` fill, the last one perhaps in part.
int rowCount(const KeySection& section);

}  // namespace vantorel
