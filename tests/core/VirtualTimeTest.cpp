#include "VirtualTime.h"

#include <gmock/gmock.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace vantorel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using namespace std::chrono_literals;

/// Notes what ran, and when in milliseconds.
class VirtualTimeTest : public testing::Test {
 protected:
  void note(const std::string& name) {
    const auto elapsed = std::chrono::duration_cast<std::chrono::milliseconds>(time.elapsed());
    notes.push_back(name + "@" + std::to_string(elapsed.count()));
  }

  std::function<void()> noting(const std::string& name) {
    return [this, name] { note(name); };
  }

  VirtualTime time;
  std::vector<std::string> notes;
};

TEST_F(VirtualTimeTest, StartsOnNewYearsMorning) {
  using std::chrono::sys_days;
  const auto start = sys_days(std::chrono::January / 1 / 2026) + 9h;
  EXPECT_EQ(time.now(), Clock::TimePoint(start));
  EXPECT_EQ(time.localTime(), "09:00:00");
}

TEST_F(VirtualTimeTest, ShowsTheTimeOfDayToTheFullSecondAndGoesOnAtMidnight) {
  time.advance(61s + 999ms);
  EXPECT_EQ(time.localTime(), "09:01:01");
  time.advance(15h);
  EXPECT_EQ(time.localTime(), "00:01:01");
}

TEST_F(VirtualTimeTest, RunsBlocksInTheOrderOfPostingAndNeverWithinThePosting) {
  time.post([this] {
    note("first");
    time.post(noting("third"));
    note("still first");
  });
  time.post(noting("second"));
  EXPECT_THAT(notes, IsEmpty());
  time.settle();
  EXPECT_THAT(notes, ElementsAre("first@0", "still first@0", "second@0", "third@0"));
}

TEST_F(VirtualTimeTest, ChoosesBlocksThenMainTimersThenQueueTimersThenEvents) {
  time.happenAt(10ms, noting("event"));
  const auto queueTimer = time.startQueueTimer("queue", 10ms, noting("queue timer"));
  const auto mainTimer = time.startMainTimer(10ms, [this] {
    note("main timer");
    time.post(noting("block"));
  });
  time.happenAt(5ms, [this] { notes.clear(); });
  time.advance(10ms);
  EXPECT_THAT(notes, ElementsAre("main timer@10", "block@10", "queue timer@10", "event@10"));
}

TEST_F(VirtualTimeTest, LetsEachEventTakeItsFullEffectBeforeTheNext) {
  time.happenAt(0ms, [this] {
    note("one");
    time.post(noting("effect of one"));
  });
  time.happenAt(0ms, noting("two"));
  time.settle();
  EXPECT_THAT(notes, ElementsAre("one@0", "effect of one@0", "two@0"));
}

TEST_F(VirtualTimeTest, OrdersEventsByTheirTimeAndThenByTheirAnnouncement) {
  time.happenAt(20ms, noting("late"));
  time.happenAt(10ms, noting("early"));
  time.happenAt(10ms, noting("early too"));
  time.advance(0ms);
  EXPECT_THAT(notes, ElementsAre("early@10", "early too@10", "late@20"));
}

TEST_F(VirtualTimeTest, TakesTheMainTimerThatWasDueEarliestFirst) {
  const auto later = time.startMainTimer(30ms, noting("later"));
  const auto earlier = time.startMainTimer(20ms, noting("earlier"));
  time.post([this] { time.sleep(35ms); });
  time.advance(35ms);
  EXPECT_THAT(notes, ElementsAre("earlier@35", "later@35"));
}

TEST_F(VirtualTimeTest, TakesQueueTimersInTheOrderInWhichTheirQueuesWereMade) {
  const auto first = time.startQueueTimer("first", 20ms, noting("first"));
  const auto second = time.startQueueTimer("second", 10ms, noting("second"));
  time.advance(20ms);
  EXPECT_THAT(notes, ElementsAre("first@0", "second@0", "second@10", "first@20", "second@20"));
}

TEST_F(VirtualTimeTest, FiresAQueueTimerAtOnceAndAMainTimerAfterOneInterval) {
  const auto queueTimer = time.startQueueTimer("queue", 50ms, noting("queue"));
  const auto mainTimer = time.startMainTimer(50ms, noting("main"));
  time.advance(100ms);
  EXPECT_THAT(notes, ElementsAre("queue@0", "main@50", "queue@50", "main@100", "queue@100"));
}

TEST_F(VirtualTimeTest, LetsQueueTimersAndEventsGoOnWhileTheMainLaneSleeps) {
  const auto queueTimer = time.startQueueTimer("queue", 20ms, noting("queue"));
  time.happenAt(30ms, noting("event"));
  time.post([this] {
    note("before");
    time.sleep(50ms);
    note("after");
  });
  time.settle();
  EXPECT_THAT(notes, ElementsAre("before@0", "queue@0", "queue@20", "event@30", "queue@40", "after@50"));
}

TEST_F(VirtualTimeTest, GoesOnAfterASleepBeforeAnythingElseThatIsDueThen) {
  const auto queueTimer = time.startQueueTimer("queue", 50ms, noting("queue"));
  time.happenAt(50ms, noting("event"));
  time.happenAt(10ms, [this] { time.post(noting("waiting block")); });
  time.post([this] {
    time.sleep(50ms);
    note("woken");
  });
  time.settle();
  EXPECT_THAT(notes, ElementsAre("queue@0", "woken@50", "waiting block@50", "queue@50", "event@50"));
}

TEST_F(VirtualTimeTest, HoldsBlocksAndMainTimersBackWhileTheMainLaneSleeps) {
  const auto mainTimer = time.startMainTimer(10ms, noting("main"));
  time.post([this] {
    time.post(noting("block"));
    time.sleep(15ms);
  });
  time.advance(20ms);
  EXPECT_THAT(notes, ElementsAre("block@15", "main@15", "main@20"));
}

TEST_F(VirtualTimeTest, MergesMissedFiringsAndKeepsToTheGrid) {
  const auto mainTimer = time.startMainTimer(10ms, noting("main"));
  time.post([this] { time.sleep(35ms); });
  time.advance(50ms);
  EXPECT_THAT(notes, ElementsAre("main@35", "main@40", "main@50"));
}

TEST_F(VirtualTimeTest, CountsThePointOfTheGridAtWhichItFiresAsFired) {
  const auto mainTimer = time.startMainTimer(10ms, noting("main"));
  time.post([this] { time.sleep(30ms); });
  time.advance(40ms);
  EXPECT_THAT(notes, ElementsAre("main@30", "main@40"));
}

TEST_F(VirtualTimeTest, FiresATimerAgainRightAfterAHandlerThatSleptPastItsInterval) {
  int firings = 0;
  const auto mainTimer = time.startMainTimer(10ms, [&] {
    note("main");
    if (++firings == 1) time.sleep(25ms);
  });
  time.advance(40ms);
  EXPECT_THAT(notes, ElementsAre("main@10", "main@35", "main@40"));
}

TEST_F(VirtualTimeTest, StopsATimerThatIsDestroyed) {
  auto timer = time.startQueueTimer("queue", 10ms, noting("queue"));
  time.advance(10ms);
  timer.reset();
  time.advance(50ms);
  EXPECT_THAT(notes, ElementsAre("queue@0", "queue@10"));
}

TEST_F(VirtualTimeTest, LetsAHandlerDestroyItsOwnTimer) {
  std::unique_ptr<Timer> timer;
  const auto witness = std::make_shared<int>(0);
  timer = time.startMainTimer(10ms, [&, witness] {
    timer.reset();
    note("lives on to its end with " + std::to_string(*witness));
  });
  time.advance(50ms);
  EXPECT_THAT(notes, ElementsAre("lives on to its end with 0@10"));
  EXPECT_EQ(witness.use_count(), 1);
}

TEST_F(VirtualTimeTest, LetsAHandlerDestroyAnotherTimerThatIsDue) {
  std::unique_ptr<Timer> other;
  const auto first = time.startQueueTimer("first", 10ms, [&] { other.reset(); });
  other = time.startQueueTimer("other", 10ms, noting("other"));
  time.advance(30ms);
  EXPECT_THAT(notes, IsEmpty());
}

TEST_F(VirtualTimeTest, EndsWhenTheEndAndAllEventsHavePassed) {
  time.happenAt(10ms, noting("event"));
  time.playUntil(30ms);
  EXPECT_EQ(time.elapsed(), 30ms);
  time.happenAt(50ms, noting("event"));
  time.playUntil(40ms);
  EXPECT_EQ(time.elapsed(), 50ms);
}

TEST_F(VirtualTimeTest, GoesOnPastTheEndUntilTheMainQueueIsEmptyAndFree) {
  time.happenAt(10ms, [this] {
    time.post([this] { time.sleep(50ms); });
    time.post([this] {
      time.sleep(50ms);
      time.post(noting("last"));
    });
  });
  time.playUntil(20ms);
  EXPECT_THAT(notes, ElementsAre("last@110"));
  EXPECT_EQ(time.elapsed(), 110ms);
}

TEST_F(VirtualTimeTest, RunsWhatIsDueAtTheEnd) {
  const auto queueTimer = time.startQueueTimer("queue", 20ms, noting("queue"));
  time.playUntil(20ms);
  EXPECT_THAT(notes, ElementsAre("queue@0", "queue@20"));
}

TEST_F(VirtualTimeTest, LetsATestSleepOutsideOfAnyBlock) {
  time.post(noting("block"));
  time.sleep(50ms);
  EXPECT_EQ(time.elapsed(), 50ms);
  EXPECT_THAT(notes, IsEmpty());
  time.settle();
  EXPECT_THAT(notes, ElementsAre("block@50"));
}

TEST_F(VirtualTimeTest, DoesNotSleepForNoTime) {
  time.happenAt(0ms, noting("event"));
  time.post([this] {
    time.sleep(0us);
    note("block");
  });
  time.settle();
  EXPECT_THAT(notes, ElementsAre("block@0", "event@0"));
}

TEST_F(VirtualTimeTest, RefusesToSleepOrPlayWithinASleep) {
  time.happenAt(10ms, [this] {
    EXPECT_THROW(time.sleep(1us), std::logic_error);
    EXPECT_THROW(time.settle(), std::logic_error);
    note("event");
  });
  time.sleep(20ms);
  EXPECT_THAT(notes, ElementsAre("event@10"));
}

TEST_F(VirtualTimeTest, RefusesATimerWithoutAnInterval) {
  EXPECT_THROW(time.startQueueTimer("queue", 0ms, [] {}), std::invalid_argument);
  EXPECT_THROW(time.startMainTimer(-1ms, [] {}), std::invalid_argument);
}

}  // namespace
}  // namespace vantorel
