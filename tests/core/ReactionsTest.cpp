#include "Reactions.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

TEST(Reactions, RunWhenTheValueDiffersAtTheEnd) {
  Reactions reactions;
  int value = 1;
  std::vector<int> seen;
  reactions.onChange<int>([&] { return value; }, [&](int now) { seen.push_back(now); });
  reactions.settle();
  value = 2;
  value = 3;
  reactions.settle();
  reactions.settle();
  EXPECT_EQ(seen, (std::vector<int>{3}));
}

TEST(Reactions, DoNotRunWhenTheValueIsBackWhereItWas) {
  Reactions reactions;
  int value = 1;
  int calls = 0;
  reactions.onChange<int>([&] { return value; }, [&](int) { ++calls; });
  value = 2;
  value = 1;
  reactions.settle();
  EXPECT_EQ(calls, 0);
}

TEST(Reactions, DoNotRunForWhatChangedBeforeTheAction) {
  Reactions reactions;
  int shared = 1;
  int own = 1;
  std::vector<int> seen;
  reactions.onChange<int>([&] { return shared; }, [&](int now) { seen.push_back(now); });
  reactions.onChange<int>([&] { return own; }, [&](int now) { seen.push_back(now); });
  shared = 2;
  reactions.begin();
  own = 3;
  reactions.settle();
  EXPECT_EQ(seen, (std::vector<int>{3}));
}

TEST(Reactions, FollowOnWhatAReactionChanges) {
  Reactions reactions;
  bool first = false;
  bool second = false;
  std::vector<std::string> order;
  reactions.onChange<bool>([&] { return second; }, [&](bool) { order.emplace_back("second"); });
  reactions.onChange<bool>([&] { return first; },
                           [&](bool) {
                             order.emplace_back("first");
                             second = true;
                           });
  first = true;
  reactions.settle();
  EXPECT_EQ(order, (std::vector<std::string>{"first", "second"}));
}

}  // namespace
}  // namespace vantorel
