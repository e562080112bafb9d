#pragma once

#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <utility>

#include "GamepadButton.h"
#include "KeyboardKey.h"

namespace vantorel {

/// The table from buttons to keys. It is replaced as a whole; a reader on any thread sees the old table or
/// the new one.
class ButtonTable {
 public:
  using Entries = std::map<GamepadButton, KeyboardKey>;

  void replace(Entries entries) {
    auto replacement = std::make_shared<const Entries>(std::move(entries));
    const std::lock_guard lock(mutex);
    entries_.swap(replacement);
  }

  bool isEmpty() const { return snapshot()->empty(); }
  bool contains(GamepadButton button) const { return snapshot()->contains(button); }

  std::optional<KeyboardKey> key(GamepadButton button) const {
    const auto entries = snapshot();
    const auto entry = entries->find(button);
    if (entry == entries->end()) return std::nullopt;
    return entry->second;
  }

 private:
  std::shared_ptr<const Entries> snapshot() const {
    const std::lock_guard lock(mutex);
    return entries_;
  }

  mutable std::mutex mutex;
  std::shared_ptr<const Entries> entries_ = std::make_shared<const Entries>();
};

}  // namespace vantorel
