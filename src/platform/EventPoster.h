#pragma once

#include <cstdint>
#include <optional>

namespace vantorel {

/// A place on the desktop in points; the origin is at the top left, y grows downwards.
struct Point {
  double x = 0;
  double y = 0;
  friend bool operator==(const Point&, const Point&) = default;
};

/// A key going down or up. `keyCode` is a macOS virtual key code; no modifiers.
struct KeyboardEvent {
  std::uint16_t keyCode = 0;
  bool isDown = false;
};

enum class MouseEventType : std::uint8_t { moved, leftDown, leftUp };

/// The mouse at `location`.
struct MouseEvent {
  MouseEventType type = MouseEventType::moved;
  Point location;
};

/// Scrolling on two axes in pixels: wheel 1 is vertical and positive upwards, wheel 2 horizontal and positive
/// to the right.
struct ScrollEvent {
  std::int32_t wheel1 = 0;
  std::int32_t wheel2 = 0;
  bool isContinuous = false;  ///< announced as a trackpad's
  std::int64_t pointDeltaAxis1 = 0;
  std::int64_t pointDeltaAxis2 = 0;
};

/// Makes input events and posts them into the user's session, as if they came from a keyboard or mouse.
/// Making one can fail; the answer is then none. Any thread.
class EventPoster {
 public:
  virtual ~EventPoster() = default;

  virtual std::optional<KeyboardEvent> makeKeyboardEvent(std::uint16_t keyCode, bool isDown) = 0;
  virtual std::optional<MouseEvent> makeMouseEvent(MouseEventType type, Point location) = 0;
  virtual std::optional<ScrollEvent> makeScrollEvent(std::int32_t wheel1, std::int32_t wheel2) = 0;

  /// Where the cursor is; none if that cannot be found out.
  virtual std::optional<Point> cursorLocation() = 0;

  virtual void post(const KeyboardEvent& event) = 0;
  virtual void post(const MouseEvent& event) = 0;
  virtual void post(const ScrollEvent& event) = 0;
};

}  // namespace vantorel
