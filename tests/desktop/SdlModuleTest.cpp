// What the program has in memory of SDL.

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include "DesktopSession.h"
#include "PadPresence.h"

namespace vantorel::test {
namespace {

class SdlModule : public ::testing::Test {
 protected:
  /// Starts the program without a window in `environment` and waits until it has looked for controllers.
  void start(const std::vector<std::string>& environment) {
    process =
        std::make_unique<Process>(VANTOREL_PROGRAM, std::vector<std::string>{"--headless"}, environment);
    ASSERT_TRUE(waitUntil([&] { return process->output().find("热键已注册") != std::string::npos; }))
        << process->output() << process->errorOutput();
  }

  bool isLoaded() const {
    std::ifstream maps("/proc/" + std::to_string(process->pid()) + "/maps");
    const std::string text((std::istreambuf_iterator<char>(maps)), {});
    EXPECT_FALSE(text.empty());
    return text.find("libSDL2") != std::string::npos;
  }

  DesktopSession session;
  std::unique_ptr<Process> process;
};

TEST_F(SdlModule, IsLoadedOnlyWhereAPadMayBeThere) {
  std::vector<std::string> environment = session.environment();
  std::erase_if(environment,
                [](const std::string& entry) { return entry.starts_with("VANTOREL_VIRTUAL_PADS="); });
  start(environment);
  EXPECT_EQ(isLoaded(), mayPadBeThere({}));
}

TEST_F(SdlModule, IsLoadedForVirtualPads) {
  start(session.environment());
  EXPECT_TRUE(isLoaded());
}

}  // namespace
}  // namespace vantorel::test
