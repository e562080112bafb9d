#pragma once

#include <functional>
#include <string_view>

#include "VirtualTime.h"

namespace vantorel {

/// The record of a play: what the program wrote and did to the outside world, line by line with the time.
class Transcript {
 public:
  /// Takes each line, with its time and without a newline, as soon as it is written.
  using Sink = std::function<void(std::string_view line)>;

  /// `virtualTime` outlives this object. Without a sink the lines are dropped.
  explicit Transcript(const VirtualTime& virtualTime, Sink lineSink = nullptr);

  /// Records `text` at the present time, which is written in seconds to the nearest millisecond.
  void write(std::string_view text);

  /// Drops everything from now on.
  void close() { sink = nullptr; }

 private:
  const VirtualTime& time;
  Sink sink;
};

}  // namespace vantorel
