#pragma once

#include <cstdint>
#include <optional>

#include "EventPoster.h"
#include "Faults.h"
#include "Transcript.h"

namespace vantorel {

/// A session that records the events posted into it and has a cursor on a desktop without edges.
class EmbeddedEventPoster : public EventPoster {
 public:
  EmbeddedEventPoster(Transcript& record, const Faults& faultList) : transcript(record), faults(faultList) {}

  /// Puts the cursor to `location`; it starts at (500, 400).
  void setCursor(Point location) { cursor = location; }

  std::optional<KeyboardEvent> makeKeyboardEvent(std::uint16_t keyCode, bool isDown) override;
  std::optional<MouseEvent> makeMouseEvent(MouseEventType type, Point location) override;
  std::optional<ScrollEvent> makeScrollEvent(std::int32_t wheel1, std::int32_t wheel2) override;
  std::optional<Point> cursorLocation() override;

  void post(const KeyboardEvent& event) override;
  /// A move also moves the cursor.
  void post(const MouseEvent& event) override;
  void post(const ScrollEvent& event) override;

 private:
  Transcript& transcript;
  const Faults& faults;
  Point cursor{500, 400};
};

}  // namespace vantorel
