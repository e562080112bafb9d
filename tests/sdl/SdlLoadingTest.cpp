#include <SDL.h>
#include <gmock/gmock.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "ControllersTest.h"
#include "TemporaryDirectory.h"

namespace vantorel::test {
namespace {

using ::testing::HasSubstr;

/// The service in a place without udev and with the test's own directory of device nodes.
class SdlLoading : public ControllersTest {
 protected:
  SdlLoading() { std::filesystem::create_directory(places.nodes); }
  ~SdlLoading() override { stop(); }

  void plugIn(const std::string& node) { std::ofstream(places.nodes / node) << ""; }

  /// Plugs a mouse in and waits until the thread has asked what it is.
  void passTime() {
    service().controllers();  // then it watches
    const std::uint64_t before = service().wakeUps();
    plugIn("mouse" + std::to_string(before));
    ASSERT_TRUE(waitUntil([&] { return service().wakeUps() > before; }));
  }

  /// What is reported when there may be a pad and SDL's part is looked for as `module`.
  std::string reportFor(const std::string& module) {
    plugIn("event0");
    places.module = module;
    testing::internal::CaptureStderr();
    start(places);
    EXPECT_TRUE(service().controllers().empty());
    stop();
    return testing::internal::GetCapturedStderr();
  }

  const TemporaryDirectory directory;
  PadPlaces places{.nodes = directory.path() / "input", .udevControl = directory.path() / "control"};
};

TEST_F(SdlLoading, IsNotDoneWhileNoPadCanBeThere) {
  start(places);
  EXPECT_TRUE(service().controllers().empty());
  passTime();
  passTime();
  EXPECT_FALSE(service().isSdlWanted());
}

TEST_F(SdlLoading, IsDoneAtTheStartWhenAPadMayBeThere) {
  plugIn("event0");
  start(places);
  service().controllers();
  EXPECT_TRUE(service().isSdlWanted());
}

TEST_F(SdlLoading, IsDoneWhenAPadMayHaveBeenPluggedInAndTellsOfIt) {
  const std::filesystem::path lines = directory.path() / "pads";
  std::ofstream(lines) << "attach late\nattach later\ndetach late\n";
  std::string variable = "VANTOREL_VIRTUAL_PADS=" + lines.string();
  start(places);
  std::vector<std::string> told;
  const auto connect = service().observeConnect([&](const std::shared_ptr<Controller>& controller) {
    told.push_back("+" + controller->vendorName().value_or("?"));
  });
  const auto disconnect = service().observeDisconnect([&] { told.emplace_back("-"); });
  EXPECT_EQ(find("later"), nullptr);
  putenv(variable.data());  // it stands for what SDL finds behind the node
  plugIn("event0");
  EXPECT_TRUE(queue_.runUntil([&] { return find("later") != nullptr && find("late") == nullptr; }));
  onSdlThread([] {});
  queue_.run();
  unsetenv("VANTOREL_VIRTUAL_PADS");
  std::erase_if(told, [](const std::string& what) { return what != "-" && !what.starts_with("+late"); });
  EXPECT_EQ(told, (std::vector<std::string>{"+late", "+later", "-"}));
}

TEST_F(SdlLoading, IsFollowedByASecondLookAsAPadMayNotBeReadyYet) {
  start(places);
  service().controllers();
  const std::uint64_t before = service().wakeUps();
  plugIn("event0");
  EXPECT_TRUE(waitUntil([&] { return service().isSdlWanted() && service().wakeUps() >= before + 2; }));
}

TEST_F(SdlLoading, IsDoneForABlockOnSdlsThread) {
  start(places);
  EXPECT_NE(attach("pad"), nullptr);
  EXPECT_TRUE(service().isSdlWanted());
}

TEST_F(SdlLoading, IsNotDoneForTheBackgroundEventsWhichAreMonitoredAsAskedForAfterwards) {
  start(places);
  service().setShouldMonitorBackgroundEvents(false);
  passTime();
  EXPECT_FALSE(service().isSdlWanted());
  const auto hint = [&] {
    std::string value;
    onSdlThread([&] { value = SDL_GetHint(SDL_HINT_JOYSTICK_ALLOW_BACKGROUND_EVENTS); });
    return value;
  };
  EXPECT_EQ(hint(), "0");
  service().setShouldMonitorBackgroundEvents(true);
  EXPECT_EQ(hint(), "1");
}

TEST_F(SdlLoading, OnceDoneLetsTheBackgroundEventsFollowAtOnce) {
  start(places);
  onSdlThread([] {});
  for (const bool should : {false, true, false}) {
    const std::uint64_t before = service().wakeUps();
    service().setShouldMonitorBackgroundEvents(should);
    EXPECT_TRUE(waitUntil([&] { return service().wakeUps() > before; }));
  }
}

TEST_F(SdlLoading, ThatFailsIsReportedAndLeavesTheListEmpty) {
  EXPECT_THAT(reportFor("vantorel-missing.so"), HasSubstr("/vantorel-missing.so"));
}

TEST_F(SdlLoading, OfAnotherLibraryIsReportedAsWell) {
  EXPECT_THAT(reportFor("/proc/self/exe"), HasSubstr("cannot dynamically load"));
}

}  // namespace
}  // namespace vantorel::test
