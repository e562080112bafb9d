#include "ConnectionOrder.h"

#include <charconv>
#include <limits>
#include <string_view>
#include <system_error>

namespace vantorel {

std::uint64_t connectionOrder(const std::string& node, const std::filesystem::path& classDirectory) {
  // Numbers of nodes are given again after an unplugging; those of devices (device -> ../../input12) never.
  constexpr std::string_view prefix = "input";
  std::uint64_t number = std::numeric_limits<std::uint64_t>::max();
  std::error_code error;
  const std::filesystem::path nodeName = std::filesystem::path(node).filename();
  const auto device = std::filesystem::read_symlink(classDirectory / nodeName / "device", error);
  const std::string name = device.filename().string();
  if (error || !name.starts_with(prefix)) return number;
  std::from_chars(name.data() + prefix.size(), name.data() + name.size(), number);
  return number;
}

}  // namespace vantorel
