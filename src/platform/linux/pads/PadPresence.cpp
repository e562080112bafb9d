#include "PadPresence.h"

#include <algorithm>
#include <cstdlib>
#include <system_error>

#include "Udev.h"

namespace vantorel {
namespace {

bool isSet(const char* variable) { return std::getenv(variable) != nullptr; }

bool isThere(const std::filesystem::path& path) {
  std::error_code error;
  return std::filesystem::exists(path, error);
}

/// SDL trusts no udev in a sandbox, where its messages do not arrive.
bool isSandbox() {
  return isThere("/.flatpak-info") || isThere("/run/host/container-manager") || isSet("SNAP");
}

bool isAnyNodeIn(const std::filesystem::path& directory) {
  std::error_code error;
  std::filesystem::directory_iterator node(directory, error);
  for (; !error && node != end(node); node.increment(error)) {
    if (node->path().filename().string().starts_with("event")) return true;
  }
  return false;
}

std::map<std::string, std::string> propertiesOf(udev_device& device) {
  std::map<std::string, std::string> properties;
  udev_list_entry* entry = udev_device_get_properties_list_entry(&device);
  for (; entry != nullptr; entry = udev_list_entry_get_next(entry)) {
    const char* const value = udev_list_entry_get_value(entry);
    properties.emplace(udev_list_entry_get_name(entry), value == nullptr ? "" : value);
  }
  return properties;
}

std::string absoluteAxesOf(udev_device& node) {
  udev_device* const device = udev_device_get_parent_with_subsystem_devtype(&node, "input", nullptr);
  const char* const axes =
      device == nullptr ? nullptr : udev_device_get_sysattr_value(device, "capabilities/abs");
  return axes == nullptr ? "" : axes;
}

bool mayUdevKnowPad() {
  const UdevHandle<udev> context(udev_new());
  const UdevHandle<udev_enumerate> nodes(context ? udev_enumerate_new(context.get()) : nullptr);
  if (!nodes) return true;
  udev_enumerate_add_match_subsystem(nodes.get(), "input");
  udev_enumerate_add_match_sysname(nodes.get(), "event*");
  if (udev_enumerate_scan_devices(nodes.get()) < 0) return true;
  udev_list_entry* entry = udev_enumerate_get_list_entry(nodes.get());
  for (; entry != nullptr; entry = udev_list_entry_get_next(entry)) {
    const UdevHandle<udev_device> node(
        udev_device_new_from_syspath(context.get(), udev_list_entry_get_name(entry)));
    if (node && mayBePad(propertiesOf(*node), absoluteAxesOf(*node))) return true;
  }
  return false;
}

}  // namespace

bool mayPadBeThere(const PadPlaces& places) {
  if (isSet("VANTOREL_VIRTUAL_PADS") || isSet("SDL_JOYSTICK_DEVICE")) return true;
  const bool isUdevAsked = isThere(places.udevControl) && !isSet("SDL_JOYSTICK_DISABLE_UDEV") && !isSandbox();
  return isUdevAsked ? mayUdevKnowPad() : isAnyNodeIn(places.nodes);
}

bool mayBePad(const std::map<std::string, std::string>& properties, const std::string& absoluteAxes) {
  const auto is = [&](const char* name, const char* value) {
    const auto found = properties.find(name);
    return found != properties.end() && found->second == value;
  };
  if (is("ID_INPUT_JOYSTICK", "1") || is("ID_CLASS", "joystick")) return true;
  const bool isSomethingElse = std::any_of(properties.begin(), properties.end(), [](const auto& property) {
    return property.first.starts_with("ID_INPUT_") && property.second == "1";
  });
  const bool hasAxes = absoluteAxes.empty() || absoluteAxes.find_first_not_of("0 ") != std::string::npos;
  return !isSomethingElse && hasAxes;
}

}  // namespace vantorel
