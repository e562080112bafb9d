#include "XServer.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "MessageBus.h"
#include "WindowManager.h"

namespace vantorel::test {
namespace {

TEST(XServer, LeavesNothingBehind) {
  std::string number;
  {
    const XServer server;
    const WindowManager manager(server);
    number = server.display().substr(1);
    EXPECT_TRUE(std::filesystem::exists("/tmp/.X11-unix/X" + number));
  }
  EXPECT_FALSE(std::filesystem::exists("/tmp/.X11-unix/X" + number));
  EXPECT_FALSE(std::filesystem::exists("/tmp/.X" + number + "-lock"));
}

TEST(MessageBus, StartsOnlyTheServicesNamed) {
  const XServer server;
  const MessageBus bare;
  const MessageBus withAccessibility({"org.a11y.Bus"}, {server.environment()});
  const std::vector<std::string> call{"call", "--session",     "-d", "org.a11y.Bus",
                                      "-o",   "/org/a11y/bus", "-m", "org.a11y.Bus.GetAddress"};
  Process refused("gdbus", call, {bare.environment()});
  EXPECT_EQ(refused.waitForExit(), 1);
  Process answered("gdbus", call, {withAccessibility.environment()});
  EXPECT_EQ(answered.waitForExit(), 0) << answered.errorOutput();
  EXPECT_NE(answered.output().find("unix:"), std::string::npos);
}

}  // namespace
}  // namespace vantorel::test
