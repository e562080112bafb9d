#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace vantorel {

/// The kernel's running number of the input device behind `node`: the device that was connected first has the
/// smallest. The largest number there is for what is no device of the kernel's. `classDirectory` is where the
/// kernel describes its input devices.
std::uint64_t connectionOrder(const std::string& node,
                              const std::filesystem::path& classDirectory = "/sys/class/input");

}  // namespace vantorel
