#include "WindowManager.h"

#include <stdexcept>
#include <string>
#include <vector>

namespace vantorel::test {
namespace {

std::string runXprop(const XServer& server, const std::vector<std::string>& arguments) {
  std::vector<std::string> all{"-root"};
  all.insert(all.end(), arguments.begin(), arguments.end());
  Process xprop("xprop", all, {server.environment()});
  xprop.waitForExit();
  return xprop.output();
}

bool isAnnounced(const XServer& server) {
  return runXprop(server, {"_NET_SUPPORTING_WM_CHECK"}).find("window id") != std::string::npos;
}

bool hasClients(const XServer& server) {
  return runXprop(server, {"_NET_CLIENT_LIST"}).find("0x") != std::string::npos;
}

/// Whether a window that appears comes under management and leaves it at its end. The manager announces
/// itself before it waits for events; what reached it in between it finds only when something else wakes it
/// up, such as the change of a property.
bool managesWindows(const XServer& server) {
  {
    const Process window("xev", {}, {server.environment()});
    const bool isManaged = waitUntil([&] {
      runXprop(server, {"-f", "VANTOREL_TEST", "8s", "-set", "VANTOREL_TEST", "wake up"});
      return hasClients(server);
    });
    if (!isManaged) return false;
  }
  return waitUntil([&] { return !hasClients(server); });
}

}  // namespace

WindowManager::WindowManager(const XServer& server)
    : process_("openbox", {"--sm-disable"},
               {server.environment(), "HOME=" + home_.path().string(), "XDG_CONFIG_HOME", "XDG_CACHE_HOME",
                "XDG_DATA_HOME"}) {
  waitUntil([&] { return isAnnounced(server) || !process_.isRunning(); });
  if (!process_.isRunning() || !managesWindows(server)) {
    throw std::runtime_error("openbox did not start: " + process_.errorOutput());
  }
}

}  // namespace vantorel::test
