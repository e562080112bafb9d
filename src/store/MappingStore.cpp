#include "MappingStore.h"

#include <algorithm>

namespace vantorel {
namespace {

constexpr const char* userDefaultsKey = "gamepad_keyboard_mappings";

auto entryFor(GamepadButton button) {
  return [button](const ButtonMapping& mapping) { return mapping.gamepadButton == button; };
}

}  // namespace

MappingStore::MappingStore(UserDefaults& userDefaults) : defaults(userDefaults) {
  loadMappings();
  if (mappings.get().empty()) createDefaultMappings();
}

void MappingStore::update(GamepadButton button, KeyboardKey key) {
  std::vector<ButtonMapping> changed = mappings;
  const auto entry = std::find_if(changed.begin(), changed.end(), entryFor(button));
  if (entry != changed.end()) {
    *entry = ButtonMapping(button, key);
  } else {
    changed.emplace_back(button, key);
  }
  mappings = std::move(changed);
  saveMappings();
}

std::optional<KeyboardKey> MappingStore::getKeyboardKey(GamepadButton button) const {
  const auto& all = mappings.get();
  const auto entry = std::find_if(all.begin(), all.end(), entryFor(button));
  if (entry == all.end()) return std::nullopt;
  return entry->keyboardKey;
}

std::string MappingStore::storedForm() const { return toJson(mappings); }

void MappingStore::loadMappings() {
  const auto stored = defaults.data(userDefaultsKey);
  if (!stored) return;
  if (auto read = buttonMappings(*stored)) mappings = std::move(*read);
}

void MappingStore::createDefaultMappings() {
  // B sends Escape and X sends Return: the crossing is meant.
  mappings = std::vector<ButtonMapping>{
      {GamepadButton::buttonA, KeyboardKey::space},      {GamepadButton::buttonB, KeyboardKey::escape},
      {GamepadButton::buttonX, KeyboardKey::returnKey},  {GamepadButton::buttonY, KeyboardKey::tab},
      {GamepadButton::dpadUp, KeyboardKey::upArrow},     {GamepadButton::dpadDown, KeyboardKey::downArrow},
      {GamepadButton::dpadLeft, KeyboardKey::leftArrow}, {GamepadButton::dpadRight, KeyboardKey::rightArrow},
  };
  saveMappings();
}

void MappingStore::saveMappings() { defaults.setData(userDefaultsKey, storedForm()); }

}  // namespace vantorel
