#include "Transcript.h"

#include <array>
#include <chrono>
#include <cstdio>
#include <string>
#include <utility>

namespace vantorel {

Transcript::Transcript(const VirtualTime& virtualTime, Sink lineSink)
    : time(virtualTime), sink(std::move(lineSink)) {}

void Transcript::write(std::string_view text) {
  if (!sink) return;
  // Half a millisecond counts as a whole one.
  const auto rounded =
      std::chrono::floor<std::chrono::milliseconds>(time.elapsed() + std::chrono::microseconds(500));
  const long long milliseconds = rounded.count();
  std::array<char, 48> stamp{};
  std::snprintf(stamp.data(), stamp.size(), "%5lld.%03lld  ", milliseconds / 1000, milliseconds % 1000);
  sink(std::string(stamp.data()).append(text));
}

}  // namespace vantorel
