#include "DeviceMonitor.h"

#include <sys/inotify.h>

namespace vantorel {

DeviceMonitor::DeviceMonitor(const std::filesystem::path& nodes)
    : context_(udev_new()), directory_(inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
  if (context_) monitor_.reset(udev_monitor_new_from_netlink(context_.get(), "udev"));
  if (monitor_) {
    udev_monitor_filter_add_match_subsystem_devtype(monitor_.get(), "input", nullptr);
    if (udev_monitor_enable_receiving(monitor_.get()) < 0) monitor_.reset();
  }
  if (directory_.isOpen()) {
    inotify_add_watch(directory_.descriptor(), nodes.c_str(), IN_CREATE | IN_DELETE | IN_MOVE | IN_ATTRIB);
  }
}

std::array<int, 2> DeviceMonitor::descriptors() const {
  return {monitor_ ? udev_monitor_get_fd(monitor_.get()) : -1, directory_.descriptor()};
}

bool DeviceMonitor::drain() {
  bool found = directory_.drain() == PolledFile::State::active;
  while (monitor_) {
    const UdevHandle<udev_device> device(udev_monitor_receive_device(monitor_.get()));
    if (!device) break;
    found = true;
  }
  return found;
}

}  // namespace vantorel
