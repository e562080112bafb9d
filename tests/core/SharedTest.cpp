#include "Shared.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

struct Thing {
  int number = 0;
};

class SharedThing : public ::testing::Test {
 protected:
  ~SharedThing() override { Shared<Thing>::reset(); }
};

TEST_F(SharedThing, IsMadeOnFirstUseOnly) {
  int made = 0;
  Shared<Thing>::install([&] {
    ++made;
    return std::make_unique<Thing>();
  });
  EXPECT_EQ(made, 0);
  Shared<Thing>::instance().number = 7;
  EXPECT_EQ(Shared<Thing>::instance().number, 7);
  EXPECT_EQ(made, 1);
}

TEST_F(SharedThing, IsNotThereBeforeTheProgramBeginsAndAfterItEnds) {
  EXPECT_THROW(Shared<Thing>::instance(), std::logic_error);
  Shared<Thing>::install([] { return std::make_unique<Thing>(); });
  Shared<Thing>::instance();
  Shared<Thing>::reset();
  EXPECT_THROW(Shared<Thing>::instance(), std::logic_error);
}

}  // namespace
}  // namespace vantorel
