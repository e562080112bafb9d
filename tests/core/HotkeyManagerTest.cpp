#include "HotkeyManager.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Machine.h"

namespace vantorel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string registered = "hotkey register VTKY 1 46 768 -> 0";
const std::string taken = "hotkey register VTKY 1 46 768 -> -9878";

class Hotkey : public ::testing::Test {
 protected:
  void press() {
    machine.platform.hotKeys.press();
    machine.settle();
  }

  Machine machine;
  std::unique_ptr<HotkeyManager> manager =
      std::make_unique<HotkeyManager>(machine.platform.hotKeys, machine.platform.standardOutput);
  int first = 0;
  int second = 0;
};

TEST_F(Hotkey, RegistersCommandShiftM) {
  manager->registerHotkey([] {});
  EXPECT_THAT(machine.take(), ElementsAre(registered, "| ✅ 热键已注册: Command + Shift + M"));
}

TEST_F(Hotkey, RunsItsActionAtEachPress) {
  manager->registerHotkey([this] { ++first; });
  press();
  press();
  EXPECT_EQ(first, 2);
}

TEST_F(Hotkey, ASecondRegistrationFailsAndReplacesTheAction) {
  manager->registerHotkey([this] { ++first; });
  machine.take();
  manager->registerHotkey([this] { ++second; });
  EXPECT_THAT(machine.take(), ElementsAre(taken, "| ❌ 热键注册失败: -9878"));
  press();
  EXPECT_EQ(first, 0);
  EXPECT_EQ(second, 1);
}

TEST_F(Hotkey, AFailedRegistrationIsReportedWithItsStatus) {
  machine.platform.hotKeys.setRegistrationStatus(-50);
  manager->registerHotkey([this] { ++first; });
  EXPECT_THAT(machine.takeOutput(), ElementsAre("❌ 热键注册失败: -50"));
  press();
  EXPECT_EQ(first, 0);
}

TEST_F(Hotkey, CanBeRegisteredAfterAFailure) {
  machine.platform.hotKeys.setRegistrationStatus(-50);
  manager->registerHotkey([this] { ++first; });
  machine.platform.hotKeys.setRegistrationStatus(0);
  manager->registerHotkey([this] { ++second; });
  press();
  EXPECT_EQ(second, 1);
}

TEST_F(Hotkey, APressWithoutAnActionDoesNothing) {
  manager->registerHotkey(nullptr);
  press();
}

TEST_F(Hotkey, UnregisteringSaysSoOnce) {
  manager->registerHotkey([this] { ++first; });
  machine.take();
  manager->unregisterHotkey();
  manager->unregisterHotkey();
  EXPECT_THAT(machine.take(), ElementsAre("| 🔓 热键已注销"));
  press();
  EXPECT_EQ(first, 0);
}

TEST_F(Hotkey, UnregisteringWithoutARegistrationSaysNothing) {
  manager->unregisterHotkey();
  manager.reset();
  EXPECT_THAT(machine.take(), IsEmpty());
}

TEST_F(Hotkey, EndsWithTheUnregisteringLine) {
  manager->registerHotkey([this] { ++first; });
  machine.take();
  manager.reset();
  EXPECT_THAT(machine.take(), ElementsAre("| 🔓 热键已注销"));
}

TEST_F(Hotkey, LeavesTheCombinationToTheSystemWithoutAWord) {
  manager->registerHotkey([this] { ++first; });
  machine.take();
  manager->leaveToSystem();
  manager.reset();
  EXPECT_THAT(machine.take(), IsEmpty());
  HotkeyManager next(machine.platform.hotKeys, machine.platform.standardOutput);
  next.registerHotkey([] {});
  EXPECT_EQ(machine.take().front(), registered);
}

TEST_F(Hotkey, APressThatArrivesAfterItsEndDoesNothing) {
  manager->registerHotkey([this] { ++first; });
  machine.platform.hotKeys.press();
  manager.reset();
  machine.settle();
  EXPECT_EQ(first, 0);
}

TEST_F(Hotkey, AnActionMayRegisterAnother) {
  manager->registerHotkey([this] {
    ++first;
    manager->registerHotkey([this] { ++second; });
  });
  press();
  press();
  EXPECT_EQ(first, 1);
  EXPECT_EQ(second, 1);
}

}  // namespace
}  // namespace vantorel::test
