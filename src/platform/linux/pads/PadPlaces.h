#pragma once

#include <filesystem>

namespace vantorel {

/// Where pads are looked for, and by what.
struct PadPlaces {
  std::filesystem::path nodes = "/dev/input";
  std::filesystem::path udevControl = "/run/udev/control";  ///< is there when udev runs
  std::filesystem::path module = "vantorel-sdl.so";         ///< SDL's part, seen from the program's directory
};

}  // namespace vantorel
