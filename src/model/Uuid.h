#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace vantorel {

/// A universally unique identifier (RFC 9562).
class Uuid {
 public:
  /// A random identifier of version 4. Any thread.
  static Uuid random();

  /// The usual form of 36 lower-case characters.
  std::string toString() const;

  friend bool operator==(const Uuid&, const Uuid&) = default;

 private:
  std::array<std::uint8_t, 16> bytes{};
};

}  // namespace vantorel
