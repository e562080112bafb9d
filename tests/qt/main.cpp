#include <gtest/gtest.h>

#include <QCoreApplication>

#include "Roles.h"

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const int status = vantorel::test::runRole({argv + 1, argv + argc});
  if (status >= 0) return status;
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
