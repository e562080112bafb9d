#pragma once

#include <cstdint>
#include <functional>
#include <memory>

namespace vantorel {

/// A system-wide key combination: a macOS virtual key code and Carbon's modifier bits.
struct HotKey {
  std::uint32_t signature = 0;  ///< a four-character code, which names the owner
  std::uint32_t id = 0;
  std::uint32_t keyCode = 0;
  std::uint32_t modifiers = 0;
};

/// A registered hot key; destroying it unregisters it.
class HotKeyReference {
 public:
  virtual ~HotKeyReference() = default;
};

/// What came of a registration.
struct HotKeyRegistration {
  std::int32_t status = 0;  ///< 0, or Carbon's error number; -9878 when the combination is taken
  std::unique_ptr<HotKeyReference> reference;  ///< null unless the status is 0
};

/// The system's hot keys. Main thread.
class HotKeys {
 public:
  virtual ~HotKeys() = default;

  /// `handler` is called on the main queue at every press of a registered hot key, in place of one installed
  /// before; it stays for the rest of the run.
  virtual void installHandler(std::function<void()> handler) = 0;

  virtual HotKeyRegistration registerHotKey(const HotKey& hotKey) = 0;
};

}  // namespace vantorel
