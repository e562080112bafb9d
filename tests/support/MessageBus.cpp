#include "MessageBus.h"

#include <fstream>
#include <stdexcept>

namespace vantorel::test {
namespace {

namespace fs = std::filesystem;

/// Writes the settings of a bus at `address` into `directory` and returns the arguments that name them.
std::vector<std::string> configure(const fs::path& directory, const std::string& address,
                                   const std::vector<std::string>& activatable) {
  const fs::path services = directory / "services";
  fs::create_directory(services);
  for (const std::string& name : activatable) {
    fs::copy_file("/usr/share/dbus-1/services/" + name + ".service", services / (name + ".service"));
  }
  const fs::path file = directory / "bus.conf";
  std::ofstream(file) << R"(<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>)" << address
                      << R"(</listen>
  <servicedir>)" << services.string()
                      << R"(</servicedir>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
)";
  return {"--config-file=" + file.string(), "--nofork", "--nopidfile", "--print-address=1"};
}

std::vector<std::string> serviceEnvironment(const fs::path& directory, std::vector<std::string> environment) {
  environment.push_back("XDG_RUNTIME_DIR=" + directory.string());
  return environment;
}

}  // namespace

MessageBus::MessageBus(const std::vector<std::string>& activatable,
                       const std::vector<std::string>& environment)
    : address_("unix:path=" + (directory_.path() / "bus").string()),
      process_("dbus-daemon", configure(directory_.path(), address_, activatable),
               serviceEnvironment(directory_.path(), environment)) {
  const auto isReady = [this] { return process_.output().find('\n') != std::string::npos; };
  waitUntil([&] { return isReady() || !process_.isRunning(); });
  if (!isReady()) throw std::runtime_error("dbus-daemon did not start: " + process_.errorOutput());
}

}  // namespace vantorel::test
