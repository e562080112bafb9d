#pragma once

#include <optional>
#include <string>
#include <vector>

#include "ButtonMapping.h"
#include "Published.h"
#include "UserDefaults.h"

namespace vantorel {

/// The user's list of mappings: restored at creation, saved after every change. Main thread.
///
/// Whatever fails fails silently: a stored value that is absent or cannot be read gives the default list,
/// which is then saved in its place.
class MappingStore {
 public:
  explicit MappingStore(UserDefaults& userDefaults);

  /// The mappings in the order in which they are shown and stored.
  Published<std::vector<ButtonMapping>> mappings{{}};

  /// Sets the key of `button`: replaces its first entry in place, or appends one; saves in any case.
  void update(GamepadButton button, KeyboardKey key);

  /// The key of the first entry for `button`, or none.
  std::optional<KeyboardKey> getKeyboardKey(GamepadButton button) const;

  /// The stored form of the present list.
  std::string storedForm() const;

 private:
  void loadMappings();
  void createDefaultMappings();
  void saveMappings();

  UserDefaults& defaults;
};

}  // namespace vantorel
