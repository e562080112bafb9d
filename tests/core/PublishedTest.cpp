#include "Published.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "Lifetime.h"

namespace vantorel {
namespace {

TEST(Published, ReadsLikeItsValue) {
  Published<int> number{3};
  const Published<std::string> text{"three"};
  EXPECT_EQ(number + 1, 4);
  EXPECT_EQ(text.get(), "three");
  number = 5;
  EXPECT_EQ(*number, 5);
}

TEST(Published, TellsOfEveryAssignmentAfterItWasMade) {
  Published<int> number{0};
  std::vector<int> seen;
  const Subscription subscription = number.observe([&] { seen.push_back(number); });
  number = 1;
  number = 1;
  EXPECT_EQ(seen, (std::vector<int>{1, 1}));
}

TEST(Published, TellsNobodyWhoseSubscriptionEnded) {
  Published<int> number{0};
  int calls = 0;
  {
    const Subscription subscription = number.observe([&] { ++calls; });
    number = 1;
  }
  number = 2;
  EXPECT_EQ(calls, 1);
}

TEST(Published, MayEndBeforeItsSubscriptions) {
  auto number = std::make_unique<Published<int>>(0);
  Subscription subscription = number->observe([] {});
  number.reset();
  subscription.reset();
}

TEST(Published, LetsAnObserverEndItsOwnAndOthersSubscriptions) {
  Published<int> number{0};
  int calls = 0;
  Subscription second;
  Subscription first = number.observe([&] {
    ++calls;
    first.reset();
    second.reset();
  });
  second = number.observe([&] { calls += 100; });
  number = 1;
  number = 2;
  EXPECT_EQ(calls, 1);
}

TEST(Published, TellsAnObserverAddedMeanwhileOnlyOfLaterAssignments) {
  Published<int> number{0};
  int late = 0;
  Subscription added;
  const Subscription first = number.observe([&] {
    if (number == 1) added = number.observe([&] { ++late; });
  });
  number = 1;
  EXPECT_EQ(late, 0);
  number = 2;
  EXPECT_EQ(late, 1);
}

TEST(Subscription, EndsOnceHoweverItMoves) {
  int ends = 0;
  {
    Subscription first([&] { ++ends; });
    Subscription second(std::move(first));
    Subscription third;
    third = std::move(second);
    EXPECT_EQ(ends, 0);
  }
  EXPECT_EQ(ends, 1);
}

TEST(Subscription, EndsTheOneItReplaces) {
  int ends = 0;
  Subscription held([&] { ++ends; });
  held = Subscription();
  EXPECT_EQ(ends, 1);
}

TEST(Lifetime, RunsAGuardedBlockOnlyWhileItsObjectLives) {
  auto lifetime = std::make_unique<Lifetime>();
  int sum = 0;
  const auto block = lifetime->guard([&](int amount) { sum += amount; });
  block(2);
  lifetime.reset();
  block(40);
  EXPECT_EQ(sum, 2);
}

}  // namespace
}  // namespace vantorel
