#pragma once

#include <cstdint>

#include "CurrentLanguage.h"
#include "KeyboardKey.h"
#include "Platform.h"

namespace vantorel {

/// Sends whole presses of keys to the session: down, a pause, up.
class KeyboardSimulator {
 public:
  /// Names of keys are written in `currentLanguage`.
  KeyboardSimulator(Platform& platform, CurrentLanguage currentLanguage);

  /// The running program's instance, made on first use.
  static KeyboardSimulator& shared();

  /// Presses `key` once and blocks the calling thread for 50 ms. Without the permission to post events, or
  /// when an event cannot be made, it only says so on standard output; a key-up is attempted in any case.
  void pressKey(KeyboardKey key);

 private:
  void postKey(std::uint16_t code, bool isDown);

  Platform& services;
  CurrentLanguage language;
};

}  // namespace vantorel
