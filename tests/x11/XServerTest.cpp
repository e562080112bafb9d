#include "XServer.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>

#include "MessageBus.h"
#include "WindowManager.h"

namespace vantorel::test {
namespace {

/// The process that holds the display with `number`, as text; empty when nobody does.
std::string holderOf(const std::string& number) {
  std::string pid;
  std::ifstream("/tmp/.X" + number + "-lock") >> pid;
  return pid;
}

TEST(XServer, FreesItsDisplay) {
  std::string number;
  std::string pid;
  {
    XServer server;
    const WindowManager manager(server);
    number = server.display().substr(1);
    pid = std::to_string(server.process().pid());
    EXPECT_EQ(holderOf(number), pid);
  }
  EXPECT_NE(holderOf(number), pid);
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
