#include "HotkeyManager.h"

#include <string>
#include <utility>

#include "FourCharCode.h"
#include "Shared.h"

namespace vantorel {
namespace {

/// Carbon's kVK_ANSI_M.
constexpr std::uint32_t defaultKeyCode = 46;
/// Carbon's cmdKey (256) and shiftKey (512).
constexpr std::uint32_t defaultModifiers = 768;

}  // namespace

HotkeyManager::HotkeyManager(HotKeys& hotKeys, StandardOutput& standardOutput)
    : service(hotKeys), output(standardOutput) {}

HotkeyManager::~HotkeyManager() { unregisterHotkey(); }

HotkeyManager& HotkeyManager::shared() { return Shared<HotkeyManager>::instance(); }

void HotkeyManager::registerHotkey(std::function<void()> action) {
  toggleAction = std::move(action);
  service.installHandler(lifetime.guard([this] { hotKeyPressed(); }));
  HotKeyRegistration registration =
      service.registerHotKey({fourCharCodeValue("VTKY"), 1, defaultKeyCode, defaultModifiers});
  if (registration.status != 0) {
    output.writeLine("❌ 热键注册失败: " + std::to_string(registration.status));
    return;
  }
  eventHotKeyRef = std::move(registration.reference);
  output.writeLine("✅ 热键已注册: Command + Shift + M");
}

void HotkeyManager::unregisterHotkey() {
  if (!eventHotKeyRef) return;
  eventHotKeyRef.reset();
  output.writeLine("🔓 热键已注销");
}

void HotkeyManager::hotKeyPressed() const {
  if (const auto action = toggleAction) action();
}

}  // namespace vantorel
