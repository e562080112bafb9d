#pragma once

#include <libudev.h>

#include <array>
#include <memory>

#include "PolledFile.h"

namespace vantorel {

/// Tells that input devices may have come or gone: by udev's word, and where no udev runs (in a container) by
/// the directory of the device nodes. With neither it stays silent. SDL's thread.
class DeviceMonitor {
 public:
  DeviceMonitor();

  /// Readable when there is something to drain; a negative one does not exist.
  std::array<int, 2> descriptors() const;

  /// Takes all messages; answers whether there were any.
  bool drain();

 private:
  struct Release {
    void operator()(udev* context) const { udev_unref(context); }
    void operator()(udev_monitor* monitor) const { udev_monitor_unref(monitor); }
    void operator()(udev_device* device) const { udev_device_unref(device); }
  };

  std::unique_ptr<udev, Release> context_;
  std::unique_ptr<udev_monitor, Release> monitor_;
  PolledFile directory_;
};

}  // namespace vantorel
