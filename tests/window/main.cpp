#include <gtest/gtest.h>

#include <QCoreApplication>

/// The tests' own event loop answers the program under test on the message bus.
int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const QCoreApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
