#include "QtTimers.h"

#include <gtest/gtest.h>
#include <pthread.h>

#include <QCoreApplication>
#include <array>
#include <atomic>
#include <ctime>
#include <mutex>
#include <thread>

#include "Spin.h"

namespace vantorel::test {
namespace {

using namespace std::chrono_literals;
using SteadyClock = std::chrono::steady_clock;

/// How often the handler was called; any thread.
using Count = std::atomic<int>;

/// How long after a point of the grid that begins at `start` it is now.
SteadyClock::duration behindGrid(SteadyClock::time_point start, SteadyClock::duration interval) {
  return (SteadyClock::now() - start) % interval;
}

TEST(QueueTimerTest, FiresFirstAtOnce) {
  QtTimers timers;
  Count count = 0;
  const auto timer = timers.startQueueTimer("test", 1h, [&] { ++count; });
  EXPECT_TRUE(waitUntil([&] { return count == 1; }));
}

TEST(QueueTimerTest, FiresAgainAndAgainAndNeverEarly) {
  QtTimers timers;
  Count count = 0;
  const auto start = SteadyClock::now();
  const auto timer = timers.startQueueTimer("test", 5ms, [&] { ++count; });
  EXPECT_TRUE(waitUntil([&] { return count >= 10; }));
  const int counted = count;
  EXPECT_LE(counted, (SteadyClock::now() - start) / 5ms + 1);
}

TEST(QueueTimerTest, MissedFiringsAreMergedIntoOne) {
  QtTimers timers;
  Count count = 0;
  std::atomic<bool> mayGoOn = false;
  const auto timer = timers.startQueueTimer("test", 10ms, [&] {
    ++count;
    waitUntil([&] { return mayGoOn.load(); });
  });
  EXPECT_TRUE(waitUntil([&] { return count == 1; }));
  std::this_thread::sleep_for(200ms);  // nineteen firings at least are missed
  const auto resumed = SteadyClock::now();
  mayGoOn = true;
  EXPECT_TRUE(waitUntil([&] { return count >= 4; }));
  const int counted = count;
  EXPECT_LE(counted, 1 + 1 + (SteadyClock::now() - resumed) / 10ms + 1);
}

TEST(QueueTimerTest, KeepsToTheGridOfItsStartAfterALateFiring) {
  constexpr auto interval = 60ms;
  QtTimers timers;
  Count count = 0;
  std::atomic<bool> isOnGrid = false;
  const auto start = SteadyClock::now();
  const auto timer = timers.startQueueTimer("test", interval, [&] {
    if (++count == 1) std::this_thread::sleep_until(start + interval * 5 / 2);
    // The second firing comes half an interval late; a timer that counts from there would stay so.
    if (count > 2 && behindGrid(start, interval) < interval / 4) isOnGrid = true;
  });
  EXPECT_TRUE(waitUntil([&] { return isOnGrid.load(); }));
}

TEST(QueueTimerTest, ItsEndWaitsForACallUnderWay) {
  QtTimers timers;
  Count count = 0;
  std::atomic<bool> hasReturned = false;
  auto timer = timers.startQueueTimer("test", 1ms, [&] {
    hasReturned = false;
    ++count;
    std::this_thread::sleep_for(20ms);
    hasReturned = true;
  });
  EXPECT_TRUE(waitUntil([&] { return count > 0; }));
  timer.reset();
  EXPECT_TRUE(hasReturned);
  const int counted = count;
  std::this_thread::sleep_for(10ms);
  EXPECT_EQ(count, counted);
}

TEST(QueueTimerTest, ItsHandlerMayDestroyIt) {
  QtTimers timers;
  Count count = 0;
  std::mutex mutex;
  std::unique_ptr<Timer> timer;
  {
    const std::lock_guard lock(mutex);
    timer = timers.startQueueTimer("test", 1ms, [&] {
      const std::lock_guard lockInHandler(mutex);
      timer.reset();
      ++count;
    });
  }
  EXPECT_TRUE(waitUntil([&] { return count == 1; }));
  Count otherCount = 0;
  const auto other = timers.startQueueTimer("other", 1ms, [&] { ++otherCount; });
  EXPECT_TRUE(waitUntil([&] { return otherCount >= 5; }));
  EXPECT_EQ(count, 1);
}

TEST(QueueTimerTest, RunsOnAThreadOfItsOwnWithTheNameOfTheQueue) {
  QtTimers timers;
  std::atomic<bool> isDone = false;
  std::array<char, 16> name{};
  std::thread::id thread;
  const auto timer = timers.startQueueTimer("com.vantorel.joystick", 1h, [&] {
    pthread_getname_np(pthread_self(), name.data(), name.size());
    thread = std::this_thread::get_id();
    isDone = true;
  });
  EXPECT_TRUE(waitUntil([&] { return isDone.load(); }));
  EXPECT_STREQ(name.data(), "com.vantorel.jo");
  EXPECT_NE(thread, std::this_thread::get_id());
}

TEST(QueueTimerTest, SurvivesBeingEndedRightAfterItsStart) {
  QtTimers timers;
  Count count = 0;
  for (int i = 0; i < 100; ++i) timers.startQueueTimer("test", 1ms, [&] { ++count; });
  const int counted = count;
  std::this_thread::sleep_for(10ms);
  EXPECT_EQ(count, counted);
}

TEST(MainTimerTest, FiresFirstAfterOneIntervalOnTheMainThread) {
  QtTimers timers;
  int count = 0;
  SteadyClock::time_point first;
  std::thread::id thread;
  const auto start = SteadyClock::now();
  const auto timer = timers.startMainTimer(30ms, [&] {
    if (++count > 1) return;
    first = SteadyClock::now();
    thread = std::this_thread::get_id();
  });
  EXPECT_TRUE(spinUntil([&] { return count == 3; }));
  EXPECT_GE(first - start, 30ms);
  EXPECT_EQ(thread, std::this_thread::get_id());
}

TEST(MainTimerTest, MissedFiringsAreMergedIntoOne) {
  QtTimers timers;
  int count = 0;
  const auto timer = timers.startMainTimer(10ms, [&] { ++count; });
  std::this_thread::sleep_for(200ms);  // twenty are due by now
  const auto resumed = SteadyClock::now();
  EXPECT_TRUE(spinUntil([&] { return count >= 3; }));
  EXPECT_LE(count, 1 + (SteadyClock::now() - resumed) / 10ms + 1);
}

TEST(MainTimerTest, KeepsToTheGridOfItsStartAfterALateFiring) {
  constexpr auto interval = 60ms;
  QtTimers timers;
  int count = 0;
  bool isOnGrid = false;
  const auto start = SteadyClock::now();
  const auto timer = timers.startMainTimer(interval, [&] {
    if (++count > 1 && behindGrid(start, interval) < interval / 4) isOnGrid = true;
  });
  std::this_thread::sleep_until(start + interval * 5 / 2);
  EXPECT_TRUE(spinUntil([&] { return isOnGrid; }));
}

TEST(MainTimerTest, ItsHandlerMayDestroyIt) {
  QtTimers timers;
  int count = 0;
  std::unique_ptr<Timer> timer;
  timer = timers.startMainTimer(1ms, [&] {
    timer.reset();
    ++count;
  });
  EXPECT_TRUE(spinUntil([&] { return count == 1; }));
  int otherCount = 0;
  const auto other = timers.startMainTimer(1ms, [&] { ++otherCount; });
  EXPECT_TRUE(spinUntil([&] { return otherCount >= 5; }));
  EXPECT_EQ(count, 1);
}

TEST(MainTimerTest, OnceDestroyedItDoesNotFireThoughItIsDue) {
  QtTimers timers;
  int count = 0;
  auto timer = timers.startMainTimer(1ms, [&] { ++count; });
  std::this_thread::sleep_for(5ms);
  timer.reset();
  QCoreApplication::processEvents();
  EXPECT_EQ(count, 0);
}

TEST(QtTimersTest, TimersThatAreNotDueCostNothing) {
  QtTimers timers;
  Count count = 0;
  const auto queueTimer = timers.startQueueTimer("test", 1h, [&] { ++count; });
  const auto mainTimer = timers.startMainTimer(1h, [&] { ++count; });
  EXPECT_TRUE(waitUntil([&] { return count == 1; }));
  const std::clock_t before = std::clock();
  std::this_thread::sleep_for(200ms);
  EXPECT_LT(std::clock() - before,
            CLOCKS_PER_SEC / 10);  // half of the time, for one busy thread would use all
}

}  // namespace
}  // namespace vantorel::test
