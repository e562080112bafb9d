#include "ViewUpdates.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <memory>

namespace vantorel {
namespace {

class ViewUpdatesTest : public testing::Test {
 protected:
  void followBoth() {
    updates->follow([this] { ++refreshes; }, number, text);
  }

  Published<int> number{0};
  Published<std::string> text{""};
  int refreshes = 0;
  std::unique_ptr<ViewUpdates> updates = std::make_unique<ViewUpdates>();
};

TEST_F(ViewUpdatesTest, RefreshesAtOnceAndThenOnceForAllChangesOfATurn) {
  followBoth();
  EXPECT_EQ(refreshes, 1);
  for (int value = 0; value < 5; ++value) number = value;
  text = "changed";
  EXPECT_EQ(refreshes, 1) << "nothing is drawn while values are still being assigned";
  QApplication::processEvents();
  EXPECT_EQ(refreshes, 2);
}

TEST_F(ViewUpdatesTest, RefreshesAgainInLaterTurns) {
  followBoth();
  for (int turn = 0; turn < 3; ++turn) {
    text = "turn";
    QApplication::processEvents();
  }
  EXPECT_EQ(refreshes, 4);
}

TEST_F(ViewUpdatesTest, RestsWhileNothingIsAssigned) {
  followBoth();
  QApplication::processEvents();
  EXPECT_EQ(refreshes, 1);
}

TEST_F(ViewUpdatesTest, ForgetsWhatIsPendingWhenItEnds) {
  followBoth();
  number = 1;
  updates.reset();
  number = 2;
  QApplication::processEvents();
  EXPECT_EQ(refreshes, 1);
}

}  // namespace
}  // namespace vantorel
