#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "GamepadButton.h"
#include "KeyboardKey.h"
#include "Uuid.h"

namespace vantorel {

/// One controller button and the key that it sends.
struct ButtonMapping {
  /// A record with a fresh random `id`.
  ButtonMapping(GamepadButton button, KeyboardKey key)
      : id(Uuid::random()), gamepadButton(button), keyboardKey(key) {}

  Uuid id;  ///< identifies the record in lists; never stored
  GamepadButton gamepadButton;
  KeyboardKey keyboardKey;

  /// Equal when button and key are: a record read back equals the one that was written.
  friend bool operator==(const ButtonMapping& left, const ButtonMapping& right) {
    return left.gamepadButton == right.gamepadButton && left.keyboardKey == right.keyboardKey;
  }
};

/// The stored form: a compact JSON array of `{"gamepadButton":…,"keyboardKey":…}` in list order, UTF-8.
std::string toJson(const std::vector<ButtonMapping>& mappings);

/// The list stored as `json`, each record with a new `id`; none if any part of it cannot be read.
/// Unknown members are ignored.
std::optional<std::vector<ButtonMapping>> buttonMappings(std::string_view json);

}  // namespace vantorel
