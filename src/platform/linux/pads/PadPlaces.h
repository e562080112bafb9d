#pragma once

#include <filesystem>
#include <string>

namespace vantorel {

/// Where pads are looked for, and by what.
struct PadPlaces {
  std::filesystem::path nodes = "/dev/input";
  std::filesystem::path udevControl = "/run/udev/control";  ///< is there when udev runs
  std::string module = "vantorel-sdl.so";                   ///< SDL's part, as dlopen(3) takes it
};

}  // namespace vantorel
