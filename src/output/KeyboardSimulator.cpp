#include "KeyboardSimulator.h"

#include <chrono>
#include <string>
#include <utility>

#include "Shared.h"

namespace vantorel {
namespace {

/// How long a key stays down.
constexpr std::chrono::microseconds pressDuration{50'000};

}  // namespace

KeyboardSimulator::KeyboardSimulator(Platform& platform, CurrentLanguage currentLanguage)
    : services(platform), language(std::move(currentLanguage)) {}

KeyboardSimulator& KeyboardSimulator::shared() { return Shared<KeyboardSimulator>::instance(); }

void KeyboardSimulator::pressKey(KeyboardKey key) {
  StandardOutput& output = services.standardOutput;
  if (!services.accessibility.isTrustedWithPrompt()) {
    output.writeLine("❌ 需要辅助功能权限才能模拟键盘按键");
    return;
  }
  const std::uint16_t code = keyCode(key);
  output.writeLine("🔧 开始发送键盘事件: " + std::string(displayName(key, language())) +
                   " (keyCode=" + std::to_string(code) + ")");
  postKeyDown(code);
  services.clock.sleep(pressDuration);
  postKeyUp(code);
  output.writeLine("🏁 键盘事件发送完成");
}

void KeyboardSimulator::postKeyDown(std::uint16_t code) {
  StandardOutput& output = services.standardOutput;
  const auto event = services.eventPoster.makeKeyboardEvent(code, true);
  if (!event) {
    output.writeLine("❌ 无法创建 CGEvent 按下事件");
    return;
  }
  output.writeLine("✅ CGEvent 按下事件创建成功");
  services.eventPoster.post(*event);
  output.writeLine("✅ 已发送按键按下事件 (.cgSessionEventTap)");
}

void KeyboardSimulator::postKeyUp(std::uint16_t code) {
  StandardOutput& output = services.standardOutput;
  const auto event = services.eventPoster.makeKeyboardEvent(code, false);
  if (!event) {
    output.writeLine("❌ 无法创建 CGEvent 释放事件");
    return;
  }
  output.writeLine("✅ CGEvent 释放事件创建成功");
  services.eventPoster.post(*event);
  output.writeLine("✅ 已发送按键释放事件 (.cgSessionEventTap)");
}

}  // namespace vantorel
