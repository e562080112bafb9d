#pragma once

#include <mutex>
#include <set>

#include "EventPoster.h"
#include "PixelAxis.h"
#include "WheelAxis.h"
#include "XcbConnection.h"

namespace vantorel {

/// Posts input events through the XTEST extension of an X server. Without the extension, or when the
/// connection is lost, posting does nothing. A point is a pixel of the root window. Any thread.
class XTestEventPoster : public EventPoster {
 public:
  /// `xcbConnection` outlives this object, and nobody else waits for its events.
  explicit XTestEventPoster(const XcbConnection& xcbConnection);
  XTestEventPoster(const XTestEventPoster&) = delete;
  XTestEventPoster& operator=(const XTestEventPoster&) = delete;

  /// Lifts what is still down.
  ~XTestEventPoster() override;

  /// None for a key that the server's present keymap lacks.
  std::optional<KeyboardEvent> makeKeyboardEvent(std::uint16_t keyCode, bool isDown) override;
  std::optional<MouseEvent> makeMouseEvent(MouseEventType type, Point location) override;
  std::optional<ScrollEvent> makeScrollEvent(std::int32_t wheel1, std::int32_t wheel2) override;

  /// With the fraction of the last move, as long as the cursor has stayed there.
  std::optional<Point> cursorLocation() override;

  void post(const KeyboardEvent& event) override;
  void post(const MouseEvent& event) override;

  /// Turns the wheel by one click for 15 pixels; what is left is kept for the next event.
  void post(const ScrollEvent& event) override;

  /// Lifts every key and button that this object holds down; returns when the server has done so.
  void releaseEverything();

 private:
  void setKey(xcb_keycode_t key, bool isDown);
  void setButton(std::uint8_t button, bool isDown);
  void turnWheel(std::int64_t clicks, std::uint8_t positiveButton, std::uint8_t negativeButton);
  void fakeInput(std::uint8_t type, std::uint8_t detail, std::int16_t x = 0, std::int16_t y = 0) const;
  void discardEvents() const;

  const XcbConnection& connection;
  const bool hasXTest;

  std::mutex mutex;  ///< guards everything below, and keeps it in step with what was sent
  std::set<xcb_keycode_t> keysDown;
  std::set<std::uint8_t> buttonsDown;
  PixelAxis x;
  PixelAxis y;
  WheelAxis verticalWheel;
  WheelAxis horizontalWheel;
};

}  // namespace vantorel
