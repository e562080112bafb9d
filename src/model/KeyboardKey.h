#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "AppLanguage.h"

namespace vantorel {

/// The fifty-seven keys that a button can send, in the order of every list of them.
/// `deleteKey` has the raw value "delete", which is a word of the language here.
// clang-format off
enum class KeyboardKey : std::uint8_t {
  space, returnKey, escape, deleteKey, tab, upArrow, downArrow, leftArrow, rightArrow,
  a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r, s, t, u, v, w, x, y, z,
  num0, num1, num2, num3, num4, num5, num6, num7, num8, num9,
  f1, f2, f3, f4, f5, f6, f7, f8, f9, f10, f11, f12,
};
// clang-format on

/// The number of keys; a key's value is below it.
inline constexpr std::size_t keyboardKeyCount = 57;

/// All keys in declaration order.
const std::array<KeyboardKey, keyboardKeyCount>& allKeyboardKeys();

/// The name under which `key` is stored.
std::string_view rawValue(KeyboardKey key);

/// The key stored as `rawValue`, or none; upper and lower case differ.
std::optional<KeyboardKey> keyboardKey(std::string_view rawValue);

std::string_view englishName(KeyboardKey key);
std::string_view chineseName(KeyboardKey key);

/// The name that the interface shows in `language`.
std::string_view displayName(KeyboardKey key, AppLanguage language);

/// The macOS virtual key code of `key` on an ANSI keyboard (Carbon's HIToolbox/Events.h, `kVK_…`).
std::uint16_t keyCode(KeyboardKey key);

}  // namespace vantorel
