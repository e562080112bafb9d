#pragma once

#include <array>
#include <filesystem>

#include "PolledFile.h"
#include "Udev.h"

namespace vantorel {

/// Tells that input devices may have come or gone: by udev's word, and where no udev runs (in a container) by
/// the directory of the device nodes. With neither it stays silent. SDL's thread.
class DeviceMonitor {
 public:
  /// Watches from now on; `nodes` is the directory of the device nodes.
  explicit DeviceMonitor(const std::filesystem::path& nodes);

  /// Readable when there is something to drain; a negative one does not exist.
  std::array<int, 2> descriptors() const;

  /// Takes all messages; answers whether there were any.
  bool drain();

 private:
  UdevHandle<udev> context_;
  UdevHandle<udev_monitor> monitor_;
  PolledFile directory_;
};

}  // namespace vantorel
