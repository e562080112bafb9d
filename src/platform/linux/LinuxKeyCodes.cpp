#include "LinuxKeyCodes.h"

#include <linux/input-event-codes.h>

#include <algorithm>
#include <array>

namespace vantorel {
namespace {

struct KeyCodePair {
  std::uint16_t macKeyCode;
  std::uint16_t linuxKeyCode;
};

// clang-format off
constexpr std::array keyCodes{
    KeyCodePair{49, KEY_SPACE},
    KeyCodePair{36, KEY_ENTER},
    KeyCodePair{53, KEY_ESC},
    KeyCodePair{51, KEY_BACKSPACE},
    KeyCodePair{48, KEY_TAB},
    KeyCodePair{126, KEY_UP},
    KeyCodePair{125, KEY_DOWN},
    KeyCodePair{123, KEY_LEFT},
    KeyCodePair{124, KEY_RIGHT},
    KeyCodePair{0, KEY_A},
    KeyCodePair{11, KEY_B},
    KeyCodePair{8, KEY_C},
    KeyCodePair{2, KEY_D},
    KeyCodePair{14, KEY_E},
    KeyCodePair{3, KEY_F},
    KeyCodePair{5, KEY_G},
    KeyCodePair{4, KEY_H},
    KeyCodePair{34, KEY_I},
    KeyCodePair{38, KEY_J},
    KeyCodePair{40, KEY_K},
    KeyCodePair{37, KEY_L},
    KeyCodePair{46, KEY_M},
    KeyCodePair{45, KEY_N},
    KeyCodePair{31, KEY_O},
    KeyCodePair{35, KEY_P},
    KeyCodePair{12, KEY_Q},
    KeyCodePair{15, KEY_R},
    KeyCodePair{1, KEY_S},
    KeyCodePair{17, KEY_T},
    KeyCodePair{32, KEY_U},
    KeyCodePair{9, KEY_V},
    KeyCodePair{13, KEY_W},
    KeyCodePair{7, KEY_X},
    KeyCodePair{16, KEY_Y},
    KeyCodePair{6, KEY_Z},
    KeyCodePair{29, KEY_0},
    KeyCodePair{18, KEY_1},
    KeyCodePair{19, KEY_2},
    KeyCodePair{20, KEY_3},
    KeyCodePair{21, KEY_4},
    KeyCodePair{23, KEY_5},
    KeyCodePair{22, KEY_6},
    KeyCodePair{26, KEY_7},
    KeyCodePair{28, KEY_8},
    KeyCodePair{25, KEY_9},
    KeyCodePair{122, KEY_F1},
    KeyCodePair{120, KEY_F2},
    KeyCodePair{99, KEY_F3},
    KeyCodePair{118, KEY_F4},
    KeyCodePair{96, KEY_F5},
    KeyCodePair{97, KEY_F6},
    KeyCodePair{98, KEY_F7},
    KeyCodePair{100, KEY_F8},
    KeyCodePair{101, KEY_F9},
    KeyCodePair{109, KEY_F10},
    KeyCodePair{103, KEY_F11},
    KeyCodePair{111, KEY_F12},
};
// clang-format on

}  // namespace

std::optional<std::uint16_t> linuxKeyCode(std::uint16_t macKeyCode) {
  const auto* const found = std::find_if(keyCodes.begin(), keyCodes.end(), [&](const KeyCodePair& pair) {
    return pair.macKeyCode == macKeyCode;
  });
  if (found == keyCodes.end()) return std::nullopt;
  return found->linuxKeyCode;
}

}  // namespace vantorel
