#include "SignalWatcher.h"

#include <gmock/gmock.h>

#include <memory>
#include <thread>

#include "Spin.h"
#include "SystemClock.h"

namespace vantorel::test {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

TEST(SignalWatcherTest, TellsOfEachSignalOnTheEventLoop) {
  std::vector<int> told;
  const SignalWatcher watcher([&](int signal) { told.push_back(signal); });
  raise(SIGTERM);
  raise(SIGINT);
  raise(SIGHUP);
  EXPECT_TRUE(told.empty());
  EXPECT_TRUE(spinUntil([&] { return told.size() == 3; }));
  EXPECT_THAT(told, ElementsAre(SIGTERM, SIGINT, SIGHUP));
}

TEST(SignalWatcherTest, ASignalDuringASleepIsToldOfAfterTheSleep) {
  constexpr auto duration = 100ms;
  std::vector<int> told;
  const SignalWatcher watcher([&](int signal) { told.push_back(signal); });
  const pthread_t main = pthread_self();
  std::thread sender([main] {
    std::this_thread::sleep_for(20ms);
    pthread_kill(main, SIGTERM);
  });
  const auto before = std::chrono::steady_clock::now();
  SystemClock().sleep(duration);
  EXPECT_GE(std::chrono::steady_clock::now() - before, duration);
  EXPECT_TRUE(told.empty());
  sender.join();
  EXPECT_TRUE(spinUntil([&] { return !told.empty(); }));
  EXPECT_THAT(told, ElementsAre(SIGTERM));
}

TEST(SignalWatcherTest, TheHandlerMayDestroyTheWatcher) {
  bool isTold = false;
  std::unique_ptr<SignalWatcher> watcher;
  watcher = std::make_unique<SignalWatcher>([&](int) {
    watcher.reset();
    isTold = true;
  });
  raise(SIGINT);
  EXPECT_TRUE(spinUntil([&] { return isTold; }));
}

TEST(SignalWatcherTest, AnIgnoredHangUpStaysIgnored) {
  std::signal(SIGHUP, SIG_IGN);
  std::vector<int> told;
  {
    const SignalWatcher watcher([&](int signal) { told.push_back(signal); });
    raise(SIGHUP);
    raise(SIGTERM);
    EXPECT_TRUE(spinUntil([&] { return !told.empty(); }));
  }
  EXPECT_EQ(std::signal(SIGHUP, SIG_DFL), SIG_IGN);
  EXPECT_THAT(told, ElementsAre(SIGTERM));
}

TEST(SignalWatcherTest, SignalsDoWhatTheyDidBeforeOnceItHasEnded) {
  const auto action = [] {
    struct sigaction current {};
    sigaction(SIGTERM, nullptr, &current);
    return current.sa_handler;
  };
  {
    const SignalWatcher watcher([](int) {});
    EXPECT_NE(action(), SIG_DFL);
  }
  EXPECT_EQ(action(), SIG_DFL);
}

}  // namespace
}  // namespace vantorel::test
