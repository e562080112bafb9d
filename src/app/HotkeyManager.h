#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "HotKeys.h"
#include "Lifetime.h"
#include "StandardOutput.h"

namespace vantorel {

/// The system-wide key combination Command + Shift + M and the one action that it runs. Main thread.
class HotkeyManager {
 public:
  HotkeyManager(HotKeys& hotKeys, StandardOutput& standardOutput);
  HotkeyManager(const HotkeyManager&) = delete;
  HotkeyManager& operator=(const HotkeyManager&) = delete;
  /// Unregisters the combination.
  ~HotkeyManager();

  /// The running program's instance, made on first use.
  static HotkeyManager& shared();

  /// Stores `action` in place of the one before and registers the combination. A registration that fails,
  /// as a second one does, is only reported; an earlier one goes on with the new action.
  void registerHotkey(std::function<void()> action);

  /// Gives the combination back, if it is registered.
  void unregisterHotkey();

  /// Gives the combination back without a word: the program ends.
  void leaveToSystem() { eventHotKeyRef.reset(); }

 private:
  void hotKeyPressed() const;

  HotKeys& service;
  StandardOutput& output;
  std::unique_ptr<HotKeyReference> eventHotKeyRef;
  std::function<void()> toggleAction;
  Lifetime lifetime;
};

}  // namespace vantorel
