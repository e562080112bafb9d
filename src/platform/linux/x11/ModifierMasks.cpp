#include "ModifierMasks.h"

#include <algorithm>
#include <span>

#include "XcbReply.h"

namespace vantorel {
namespace {

constexpr xcb_keysym_t superLeft = 0xffeb;
constexpr xcb_keysym_t altLeft = 0xffe9;
constexpr xcb_keysym_t numLock = 0xff7f;
constexpr xcb_keysym_t scrollLock = 0xff14;

/// Which keys bear which symbols and act as which of the eight modifiers.
class Keymap {
 public:
  explicit Keymap(const XcbConnection& connection)
      : firstKey(xcb_get_setup(connection.handle())->min_keycode) {
    xcb_connection_t* const handle = connection.handle();
    const int keyCount = xcb_get_setup(handle)->max_keycode - firstKey + 1;
    const auto modifiersCookie = xcb_get_modifier_mapping(handle);
    const auto keysCookie = xcb_get_keyboard_mapping(handle, firstKey, static_cast<std::uint8_t>(keyCount));
    modifiers.reset(xcb_get_modifier_mapping_reply(handle, modifiersCookie, nullptr));
    keys.reset(xcb_get_keyboard_mapping_reply(handle, keysCookie, nullptr));
  }

  /// The bits of the modifiers that a key with `symbol` acts as.
  std::uint16_t maskOf(xcb_keysym_t symbol) const {
    if (!modifiers || !keys) return 0;
    const std::size_t keysPerModifier = modifiers->keycodes_per_modifier;
    const std::span all(xcb_get_modifier_mapping_keycodes(modifiers.get()), 8 * keysPerModifier);
    unsigned mask = 0;
    for (std::size_t index = 0; index < all.size(); ++index) {
      if (bears(all[index], symbol)) mask |= 1U << (index / keysPerModifier);
    }
    return static_cast<std::uint16_t>(mask);
  }

 private:
  bool bears(xcb_keycode_t key, xcb_keysym_t symbol) const {
    if (key < firstKey) return false;  // an empty place in the table is 0
    const std::size_t symbolsPerKey = keys->keysyms_per_keycode;
    const std::span all(xcb_get_keyboard_mapping_keysyms(keys.get()),
                        static_cast<std::size_t>(xcb_get_keyboard_mapping_keysyms_length(keys.get())));
    const auto ofKey = all.subspan((key - firstKey) * symbolsPerKey, symbolsPerKey);
    return std::find(ofKey.begin(), ofKey.end(), symbol) != ofKey.end();
  }

  xcb_keycode_t firstKey;
  XcbReply<xcb_get_modifier_mapping_reply_t> modifiers;
  XcbReply<xcb_get_keyboard_mapping_reply_t> keys;
};

}  // namespace

ModifierMasks readModifierMasks(const XcbConnection& connection) {
  const Keymap keymap(connection);
  ModifierMasks masks;
  masks.super = keymap.maskOf(superLeft);
  masks.alt = keymap.maskOf(altLeft);
  masks.locks =
      static_cast<std::uint16_t>(XCB_MOD_MASK_LOCK | keymap.maskOf(numLock) | keymap.maskOf(scrollLock));
  return masks;
}

}  // namespace vantorel
