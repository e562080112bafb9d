// What the manager checks about the machine that it runs on.

#include <algorithm>
#include <array>

#include "GameControllerManager.h"

namespace vantorel {
namespace {

constexpr std::array driverPaths{
    "/Library/Extensions/360Controller.kext",
    "/System/Library/Extensions/360Controller.kext",
    "/Library/Application Support/360Controller",
};

}  // namespace

void GameControllerManager::check360ControllerDriver() {
  const bool isInstalled = std::any_of(driverPaths.begin(), driverPaths.end(), [this](const char* path) {
    return services.fileManager.fileExists(path);
  });
  publish(is360ControllerInstalled, isInstalled);
  if (isInstalled) {
    addLog("✅ 360Controller 驱动已安装");
  } else {
    addLog("⚠️ 未检测到 360Controller 驱动");
    addLog("💡 需要安装 360Controller 才能使用 Xbox 手柄");
  }
}

void GameControllerManager::checkAccessibilityPermission() {
  const bool trusted = services.accessibility.isTrusted();
  publish(hasAccessibilityPermission, trusted);
  addLog(trusted ? "🔐 辅助功能权限: ✅ 已授权" : "🔐 辅助功能权限: ❌ 未授权");
}

}  // namespace vantorel
