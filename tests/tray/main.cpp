#include <gtest/gtest.h>

#include <QCoreApplication>
#include <cstring>

#include "TrayProgram.h"

/// Runs the tests or, with the argument "--program", is itself the program under test: each test needs a
/// fresh process, as Qt remembers the first status bar that it has met.
int main(int argc, char** argv) {
  if (argc > 1 && std::strcmp(argv[1], "--program") == 0) return vantorel::test::runTrayProgram(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  const QCoreApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
