#pragma once

#include <libudev.h>

#include <memory>

namespace vantorel {

/// Gives an object of libudev's back.
struct UdevRelease {
  void operator()(udev* context) const { udev_unref(context); }
  void operator()(udev_monitor* monitor) const { udev_monitor_unref(monitor); }
  void operator()(udev_enumerate* enumeration) const { udev_enumerate_unref(enumeration); }
  void operator()(udev_device* device) const { udev_device_unref(device); }
};

/// Owns an object of libudev's.
template <class Object>
using UdevHandle = std::unique_ptr<Object, UdevRelease>;

}  // namespace vantorel
