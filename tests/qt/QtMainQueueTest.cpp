#include "QtMainQueue.h"

#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <memory>
#include <thread>
#include <vector>

#include "QtTimers.h"
#include "Spin.h"
#include "SystemClock.h"

namespace vantorel::test {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

TEST(QtMainQueueTest, BlocksRunLaterInTheOrderOfTheirPosting) {
  QtMainQueue queue;
  std::vector<int> order;
  for (const int number : {1, 2, 3}) queue.post([&, number] { order.push_back(number); });
  EXPECT_TRUE(order.empty());
  EXPECT_TRUE(spinUntil([&] { return order.size() == 3; }));
  EXPECT_THAT(order, ElementsAre(1, 2, 3));
}

TEST(QtMainQueueTest, ABlockPostedByABlockRunsAfterThoseThatWait) {
  QtMainQueue queue;
  std::vector<std::string> order;
  queue.post([&] {
    order.emplace_back("outer begins");
    queue.post([&] { order.emplace_back("inner"); });
    order.emplace_back("outer ends");
  });
  queue.post([&] { order.emplace_back("second"); });
  EXPECT_TRUE(spinUntil([&] { return order.size() == 4; }));
  EXPECT_THAT(order, ElementsAre("outer begins", "outer ends", "second", "inner"));
}

TEST(QtMainQueueTest, BlocksOfOtherThreadsRunOnTheMainThreadInTheOrderOfEach) {
  constexpr int threadCount = 4;
  constexpr int blockCount = 500;
  QtMainQueue queue;
  std::vector<std::vector<int>> orders(threadCount);
  int count = 0;
  bool isAlwaysMain = true;
  const std::thread::id main = std::this_thread::get_id();
  std::vector<std::thread> threads;
  for (std::vector<int>& order : orders) {
    threads.emplace_back([&] {
      for (int number = 0; number < blockCount; ++number) {
        queue.post([&, number] {
          order.push_back(number);
          isAlwaysMain = isAlwaysMain && std::this_thread::get_id() == main;
          ++count;
        });
      }
    });
  }
  EXPECT_TRUE(spinUntil([&] { return count == threadCount * blockCount; }));
  for (std::thread& thread : threads) thread.join();
  for (const std::vector<int>& order : orders) EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
  EXPECT_TRUE(isAlwaysMain);
}

TEST(QtMainQueueTest, APostWakesALoopThatSleeps) {
  QtMainQueue queue;
  QEventLoop loop;
  std::thread poster([&] {
    std::this_thread::sleep_for(50ms);  // the loop below sleeps by now
    queue.post([&] { loop.quit(); });
  });
  loop.exec();  // hangs if nothing wakes it
  poster.join();
}

TEST(QtMainQueueTest, NothingElseRunsWhileABlockSleeps) {
  QtMainQueue queue;
  QtTimers timers;
  SystemClock clock;
  bool isAsleep = false;
  bool hasSlept = false;
  int disturbances = 0;
  const auto timer = timers.startMainTimer(1ms, [&] { disturbances += isAsleep ? 1 : 0; });
  queue.post([&] {
    queue.post([&] { disturbances += isAsleep ? 1 : 0; });
    isAsleep = true;
    clock.sleep(50ms);
    isAsleep = false;
    queue.post([&] { hasSlept = true; });
  });
  EXPECT_TRUE(spinUntil([&] { return hasSlept; }));
  EXPECT_EQ(disturbances, 0);
}

TEST(QtMainQueueTest, WaitingBlocksRunInOrderWithinALoopThatABlockRuns) {
  QtMainQueue queue;
  std::vector<int> order;
  queue.post([&] {
    EXPECT_TRUE(spinUntil([&] { return order.size() == 3; }));
    order.push_back(4);
  });
  for (const int number : {1, 2, 3}) queue.post([&, number] { order.push_back(number); });
  EXPECT_TRUE(spinUntil([&] { return order.size() == 4; }));
  EXPECT_THAT(order, ElementsAre(1, 2, 3, 4));
}

TEST(QtMainQueueTest, RunsTheWaitingBlocksAtOnceWhenItIsToldTo) {
  QtMainQueue queue;
  std::vector<std::string> order;
  queue.post([&] {
    order.emplace_back("first");
    queue.post([&] { order.emplace_back("posted by the first"); });
  });
  queue.post([&] { order.emplace_back("second"); });
  queue.runWaiting();
  EXPECT_THAT(order, ElementsAre("first", "second"));
  EXPECT_TRUE(spinUntil([&] { return order.size() == 3; }));
  queue.runWaiting();
  EXPECT_EQ(order.size(), 3U) << "each block runs once";
}

TEST(QtMainQueueTest, BlocksLeftAtItsEndDoNotRun) {
  bool hasRun = false;
  const auto held = std::make_shared<int>();
  {
    QtMainQueue queue;
    queue.post([&hasRun, held] { hasRun = true; });
    EXPECT_EQ(held.use_count(), 2);
  }
  EXPECT_EQ(held.use_count(), 1);
  QtMainQueue next;
  bool isDone = false;
  next.post([&] { isDone = true; });
  EXPECT_TRUE(spinUntil([&] { return isDone; }));
  EXPECT_FALSE(hasRun);
}

TEST(QtMainQueueTest, WhatABlockLeftAtItsEndHoldsMayPostAsItGoes) {
  bool hasRun = false;
  {
    QtMainQueue queue;
    const std::shared_ptr<void> lastWill(nullptr, [&](void*) { queue.post([&] { hasRun = true; }); });
    queue.post([lastWill] {});
  }
  QCoreApplication::processEvents();
  EXPECT_FALSE(hasRun);
}

}  // namespace
}  // namespace vantorel::test
