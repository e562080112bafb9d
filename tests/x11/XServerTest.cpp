#include "XServer.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <string>
#include <system_error>

#include "MessageBus.h"
#include "WindowManager.h"

namespace vantorel::test {
namespace {

/// When the socket of `display` was made; none when there is none.
std::optional<std::filesystem::file_time_type> socketTime(const std::string& display) {
  std::error_code error;
  const auto time = std::filesystem::last_write_time("/tmp/.X11-unix/X" + display.substr(1), error);
  return error ? std::nullopt : std::optional(time);
}

TEST(XServer, LeavesNothingBehind) {
  std::string display;
  std::optional<std::filesystem::file_time_type> time;
  {
    const XServer server;
    const WindowManager manager(server);
    display = server.display();
    time = socketTime(display);
    ASSERT_TRUE(time);
  }
  EXPECT_NE(socketTime(display), time) << "by now another server may have one of the same name";
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
