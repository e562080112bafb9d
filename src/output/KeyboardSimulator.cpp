#include "KeyboardSimulator.h"

#include <chrono>
#include <string>
#include <utility>

#include "Shared.h"

namespace vantorel {
namespace {

/// How long a key stays down.
constexpr std::chrono::microseconds pressDuration{50'000};

/// What is written about one of the two events.
struct EventLines {
  const char* created;
  const char* sent;
  const char* failed;
};

constexpr EventLines downLines{"✅ CGEvent 按下事件创建成功", "✅ 已发送按键按下事件 (.cgSessionEventTap)",
                               "❌ 无法创建 CGEvent 按下事件"};
constexpr EventLines upLines{"✅ CGEvent 释放事件创建成功", "✅ 已发送按键释放事件 (.cgSessionEventTap)",
                             "❌ 无法创建 CGEvent 释放事件"};

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
  postKey(code, true);
  services.clock.sleep(pressDuration);
  postKey(code, false);
  output.writeLine("🏁 键盘事件发送完成");
}

void KeyboardSimulator::postKey(std::uint16_t code, bool isDown) {
  const EventLines& lines = isDown ? downLines : upLines;
  const auto event = services.eventPoster.makeKeyboardEvent(code, isDown);
  if (!event) {
    services.standardOutput.writeLine(lines.failed);
    return;
  }
  services.standardOutput.writeLine(lines.created);
  services.eventPoster.post(*event);
  services.standardOutput.writeLine(lines.sent);
}

}  // namespace vantorel
