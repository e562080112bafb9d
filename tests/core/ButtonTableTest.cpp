#include "ButtonTable.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace vantorel {
namespace {

TEST(ButtonTable, IsEmptyAtFirst) {
  const ButtonTable table;
  EXPECT_TRUE(table.isEmpty());
  EXPECT_FALSE(table.contains(GamepadButton::buttonA));
  EXPECT_EQ(table.key(GamepadButton::buttonA), std::nullopt);
}

TEST(ButtonTable, IsReplacedAsAWhole) {
  ButtonTable table;
  table.replace({{GamepadButton::buttonA, KeyboardKey::space}});
  table.replace({{GamepadButton::buttonB, KeyboardKey::tab}});
  EXPECT_FALSE(table.contains(GamepadButton::buttonA));
  EXPECT_EQ(table.key(GamepadButton::buttonB), KeyboardKey::tab);
}

TEST(ButtonTable, ShowsAReaderOnAnotherThreadTheOldOrTheNewTable) {
  ButtonTable table;
  std::atomic<bool> isDone = false;
  std::atomic<bool> sawAnythingElse = false;
  std::thread reader([&] {
    while (!isDone) {
      const auto key = table.key(GamepadButton::buttonA);
      if (key && *key != KeyboardKey::space && *key != KeyboardKey::tab) sawAnythingElse = true;
    }
  });
  for (int round = 0; round < 2000; ++round) {
    table.replace({{GamepadButton::buttonA, round % 2 == 0 ? KeyboardKey::space : KeyboardKey::tab}});
  }
  isDone = true;
  reader.join();
  EXPECT_FALSE(sawAnythingElse);
}

}  // namespace
}  // namespace vantorel
