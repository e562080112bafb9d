#pragma once

#include <memory>
#include <optional>

#include "AccessibilityTrust.h"
#include "EventPoster.h"
#include "HotKeys.h"

namespace vantorel {

/// A session into which this program cannot post events: the permission is never given, no event can be made
/// and no combination grabbed.
class NoInjection final : public AccessibilityTrust, public EventPoster, public HotKeys {
 public:
  /// Carbon's eventInternalErr, for want of a service.
  static constexpr std::int32_t noService = -9868;

  bool isTrusted() override { return false; }
  bool isTrustedWithPrompt() override { return false; }

  std::optional<KeyboardEvent> makeKeyboardEvent(std::uint16_t /*keyCode*/, bool /*isDown*/) override {
    return std::nullopt;
  }
  std::optional<MouseEvent> makeMouseEvent(MouseEventType /*type*/, Point /*location*/) override {
    return std::nullopt;
  }
  std::optional<ScrollEvent> makeScrollEvent(std::int32_t /*wheel1*/, std::int32_t /*wheel2*/) override {
    return std::nullopt;
  }
  std::optional<Point> cursorLocation() override { return std::nullopt; }
  void post(const KeyboardEvent& /*event*/) override {}
  void post(const MouseEvent& /*event*/) override {}
  void post(const ScrollEvent& /*event*/) override {}

  void installHandler(std::function<void()> /*handler*/) override {}
  HotKeyRegistration registerHotKey(const HotKey& /*hotKey*/) override { return {noService, nullptr}; }
};

}  // namespace vantorel
