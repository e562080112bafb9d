#include "XcbConnection.h"

#include <gmock/gmock.h>
#include <stdlib.h>
#include <xcb/xtest.h>

#include <csignal>
#include <string>

#include "X11AccessibilityTrust.h"
#include "XServer.h"

namespace vantorel::test {
namespace {

using testing::ThrowsMessage;

/// The variable DISPLAY as the test wants it, for as long as this object lives.
class DisplayVariable {
 public:
  explicit DisplayVariable(const char* value) {
    if (const char* const present = getenv("DISPLAY")) former = present;
    set(value);
  }
  DisplayVariable(const DisplayVariable&) = delete;
  DisplayVariable& operator=(const DisplayVariable&) = delete;
  ~DisplayVariable() { set(former ? former->c_str() : nullptr); }

 private:
  static void set(const char* value) {
    if (value == nullptr) {
      unsetenv("DISPLAY");
    } else {
      setenv("DISPLAY", value, 1);
    }
  }

  std::optional<std::string> former;
};

TEST(XcbConnection, SaysThatNoDisplayIsSet) {
  for (const char* const value : {static_cast<const char*>(nullptr), ""}) {
    const DisplayVariable variable(value);
    EXPECT_THAT([] { XcbConnection{}; }, ThrowsMessage<std::runtime_error>("DISPLAY is not set"));
  }
}

TEST(XcbConnection, NamesTheDisplayThatDoesNotAnswer) {
  const DisplayVariable variable(":64999");
  EXPECT_THAT([] { XcbConnection{}; }, ThrowsMessage<std::runtime_error>("cannot open display :64999"));
  EXPECT_THAT([] { XcbConnection(":64998"); },
              ThrowsMessage<std::runtime_error>("cannot open display :64998"));
}

TEST(XcbConnection, OpensTheDisplayOfTheEnvironment) {
  const XServer server;
  const DisplayVariable variable(server.display().c_str());
  const XcbConnection connection;
  EXPECT_NE(connection.root(), XCB_NONE);
  EXPECT_FALSE(connection.isLost());
}

TEST(XcbConnection, KnowsWhenItIsLost) {
  XServer server;
  const XcbConnection connection(server.display());
  server.process().signal(SIGKILL);
  server.process().waitForExit();
  connection.sync();
  EXPECT_TRUE(connection.isLost());
}

TEST(X11AccessibilityTrust, IsGivenByTheExtension) {
  const XServer server;
  const XcbConnection connection(server.display());
  X11AccessibilityTrust trust(connection);
  EXPECT_TRUE(trust.isTrusted());
  EXPECT_TRUE(trust.isTrustedWithPrompt());
}

TEST(X11AccessibilityTrust, IsMissingWithoutTheExtension) {
  const XServer server({"-extension", "XTEST"});
  const XcbConnection connection(server.display());
  X11AccessibilityTrust trust(connection);
  EXPECT_FALSE(trust.isTrusted());
  EXPECT_FALSE(trust.isTrustedWithPrompt());
}

}  // namespace
}  // namespace vantorel::test
