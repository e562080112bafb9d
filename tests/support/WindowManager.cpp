#include "WindowManager.h"

#include <stdexcept>

namespace vantorel::test {
namespace {

bool isManaged(const XServer& server) {
  Process xprop("xprop", {"-root", "_NET_SUPPORTING_WM_CHECK"}, {server.environment()});
  xprop.waitForExit();
  return xprop.output().find("window id") != std::string::npos;
}

}  // namespace

WindowManager::WindowManager(const XServer& server)
    : process_("openbox", {"--sm-disable"},
               {server.environment(), "HOME=" + home_.path().string(), "XDG_CONFIG_HOME", "XDG_CACHE_HOME",
                "XDG_DATA_HOME"}) {
  bool isReady = false;
  waitUntil([&] { return (isReady = isManaged(server)) || !process_.isRunning(); });
  if (!isReady) throw std::runtime_error("openbox did not start: " + process_.errorOutput());
}

}  // namespace vantorel::test
