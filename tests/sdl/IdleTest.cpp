#include <chrono>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>

#include "ControllersTest.h"

namespace vantorel::test {
namespace {

/// How often the threads named `name` have gone to sleep by themselves.
std::uint64_t timesAsleep(const std::string& name) {
  std::uint64_t sum = 0;
  for (const auto& task : std::filesystem::directory_iterator("/proc/self/task")) {
    std::ifstream status(task.path() / "status");
    bool isNamed = false;
    for (std::string line; std::getline(status, line);) {
      if (line == "Name:\t" + name) isNamed = true;
      const std::string key = "voluntary_ctxt_switches:";
      if (isNamed && line.starts_with(key)) sum += std::stoull(line.substr(key.size()));
    }
  }
  return sum;
}

class Idle : public ControllersTest {
 protected:
  /// Whether nothing wakes the thread. Devices of the machine may stir, so one quiet stretch among several is
  /// what must be found.
  bool isQuiet() {
    return waitUntil([&] {
      const std::uint64_t wakeUps = service().wakeUps();
      const std::uint64_t sleeps = timesAsleep("controllers");
      std::this_thread::sleep_for(std::chrono::milliseconds(500));
      return service().wakeUps() == wakeUps && timesAsleep("controllers") == sleeps;
    });
  }
};

TEST_F(Idle, NothingWakesTheThreadWhileNothingHappens) {
  attach("one");
  attach("two");
  play("button one buttonA 1");
  play("axis two leftx 32767");
  EXPECT_TRUE(isQuiet());
  EXPECT_GT(timesAsleep("controllers"), 0U);
}

TEST_F(Idle, NothingWakesTheThreadWhileSdlIsNotNeeded) {
  start({.nodes = "/nowhere", .udevControl = "/nowhere"});
  service().controllers();
  EXPECT_TRUE(isQuiet());
  EXPECT_GT(timesAsleep("controllers"), 0U);
  EXPECT_FALSE(service().isSdlWanted());
}

TEST_F(Idle, AWakeUpIsAllItTakesForSdlToLook) {
  attach("pad");
  queue_.run();
  const std::uint64_t before = service().wakeUps();
  service().wake();
  EXPECT_TRUE(waitUntil([&] { return service().wakeUps() > before; }));
}

}  // namespace
}  // namespace vantorel::test
