// What reaches the running program from outside: a second start and its options.

#include "WindowTest.h"
#include "XClient.h"

namespace vantorel::test {
namespace {

/// How a user comes to look for the window: by a plain start or by --show.
class SecondStart : public WindowTest, public testing::WithParamInterface<std::vector<std::string>> {};

TEST_P(SecondStart, ShowsAClosedWindow) {
  start();
  closeWindow();
  EXPECT_EQ(startAgain(GetParam()), 0);
  EXPECT_TRUE(eventually([&] { return isInFront(); }));
}

TEST_P(SecondStart, RestoresAMinimisedWindow) {
  start();
  windows.minimise(window());
  ASSERT_TRUE(eventually([&] { return windows.isMinimised(window()) && !screen.isVisible(window()); }));
  EXPECT_EQ(startAgain(GetParam()), 0);
  EXPECT_TRUE(eventually([&] { return isInFront() && !windows.isMinimised(window()); }));
}

TEST_P(SecondStart, RaisesACoveredWindow) {
  start();
  const XClient cover(session.server());
  ASSERT_TRUE(eventually([&] { return windows.highest() != window() && windows.active() != window(); }));
  EXPECT_EQ(startAgain(GetParam()), 0);
  EXPECT_TRUE(eventually([&] { return isInFront(); }));
}

TEST_P(SecondStart, OpensNoFurtherWindow) {
  start();
  EXPECT_EQ(startAgain(GetParam()), 0);
  EXPECT_TRUE(eventually([&] { return isInFront(); }));
  EXPECT_EQ(windowCount(), 1U);
}

INSTANTIATE_TEST_SUITE_P(, SecondStart,
                         testing::Values(std::vector<std::string>{}, std::vector<std::string>{"--show"}),
                         [](const auto& given) { return given.param.empty() ? "Plain" : "Show"; });

using OptionFromOutside = WindowTest;

TEST_F(OptionFromOutside, ToggleFlipsTheMapping) {
  start();
  EXPECT_EQ(startAgain({"--toggle"}), 0);
  EXPECT_TRUE(eventuallySays(mappingOn));
  EXPECT_EQ(startAgain({"--toggle"}), 0);
  EXPECT_TRUE(eventuallySays(mappingOff));
}

TEST_F(OptionFromOutside, QuitEndsTheProgram) {
  start();
  EXPECT_EQ(startAgain({"--quit"}), 0);
  ASSERT_TRUE(eventually([&] { return !program->isRunning(); }));
  EXPECT_EQ(program->waitForExit(), 0);
}

}  // namespace
}  // namespace vantorel::test
