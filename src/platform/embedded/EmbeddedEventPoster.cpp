#include "EmbeddedEventPoster.h"

#include <array>
#include <cstddef>
#include <string>

#include "ShortestDecimal.h"

namespace vantorel {
namespace {

struct MouseFacts {
  const char* text;
  Fault fault;
};

/// Indexed by the type's value.
constexpr std::array<MouseFacts, 3> mouseFacts{{
    {"mouse move ", Fault::mouseMove},
    {"mouse down ", Fault::mouseDown},
    {"mouse up ", Fault::mouseUp},
}};

const MouseFacts& factsOf(MouseEventType type) { return mouseFacts.at(static_cast<std::size_t>(type)); }

}  // namespace

std::optional<KeyboardEvent> EmbeddedEventPoster::makeKeyboardEvent(std::uint16_t keyCode, bool isDown) {
  if (faults.contains(isDown ? Fault::keyDown : Fault::keyUp)) return std::nullopt;
  return KeyboardEvent{keyCode, isDown};
}

std::optional<MouseEvent> EmbeddedEventPoster::makeMouseEvent(MouseEventType type, Point location) {
  if (faults.contains(factsOf(type).fault)) return std::nullopt;
  return MouseEvent{type, location};
}

std::optional<ScrollEvent> EmbeddedEventPoster::makeScrollEvent(std::int32_t wheel1, std::int32_t wheel2) {
  if (faults.contains(Fault::scroll)) return std::nullopt;
  ScrollEvent event;
  event.wheel1 = wheel1;
  event.wheel2 = wheel2;
  return event;
}

std::optional<Point> EmbeddedEventPoster::cursorLocation() {
  if (faults.contains(Fault::cursor)) return std::nullopt;
  return cursor;
}

void EmbeddedEventPoster::post(const KeyboardEvent& event) {
  transcript.write((event.isDown ? "key down " : "key up ") + std::to_string(event.keyCode));
}

void EmbeddedEventPoster::post(const MouseEvent& event) {
  if (event.type == MouseEventType::moved) cursor = event.location;
  transcript.write(factsOf(event.type).text + shortestDecimal(event.location.x) + " " +
                   shortestDecimal(event.location.y));
}

void EmbeddedEventPoster::post(const ScrollEvent& event) {
  transcript.write("scroll " + std::to_string(event.wheel1) + " " + std::to_string(event.wheel2) +
                   " continuous=" + (event.isContinuous ? "1" : "0") + " delta=" +
                   std::to_string(event.pointDeltaAxis1) + "," + std::to_string(event.pointDeltaAxis2));
}

}  // namespace vantorel
