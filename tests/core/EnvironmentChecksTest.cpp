// What the manager checks about the machine.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Manager.h"

namespace vantorel::test {
namespace {

using ::testing::ElementsAre;

class EnvironmentChecks : public ::testing::Test {
 protected:
  Manager machine;
};

TEST_F(EnvironmentChecks, FindsTheDriverAtEachOfItsPaths) {
  for (const char* path :
       {"/Library/Extensions/360Controller.kext", "/System/Library/Extensions/360Controller.kext",
        "/Library/Application Support/360Controller"}) {
    Manager other;
    other.platform.fileManager.addFile(path);
    EXPECT_TRUE(other.launch().is360ControllerInstalled) << path;
    other.manager->check360ControllerDriver();
    EXPECT_THAT(other.takeOutput(), ElementsAre("✅ 360Controller 驱动已安装"));
  }
}

TEST_F(EnvironmentChecks, MissesADriverThatIsElsewhere) {
  machine.platform.fileManager.addFile("/Library/Extensions");
  EXPECT_FALSE(machine.launch().is360ControllerInstalled);
  machine.manager->check360ControllerDriver();
  EXPECT_THAT(machine.takeOutput(), ElementsAre("⚠️ 未检测到 360Controller 驱动",
                                                "💡 需要安装 360Controller 才能使用 Xbox 手柄"));
}

TEST_F(EnvironmentChecks, AsksForThePermissionWithoutAPrompt) {
  machine.platform.accessibility.setGranted(false);
  EXPECT_FALSE(machine.launch().hasAccessibilityPermission);
  machine.manager->checkAccessibilityPermission();
  EXPECT_THAT(machine.take(), ElementsAre("| [09:00:00] 🔐 辅助功能权限: ❌ 未授权"));
  machine.platform.accessibility.setGranted(true);
  machine.manager->checkAccessibilityPermission();
  EXPECT_FALSE(machine.manager->hasAccessibilityPermission) << "published a block later";
  machine.settle();
  EXPECT_TRUE(machine.manager->hasAccessibilityPermission);
  EXPECT_THAT(machine.takeOutput(), ElementsAre("🔐 辅助功能权限: ✅ 已授权"));
}

}  // namespace
}  // namespace vantorel::test
