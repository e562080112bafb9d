// The program without a window on a real X server, seen by another client there.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

#include <chrono>
#include <csignal>
#include <thread>

#include "DesktopSession.h"
#include "WaitUntil.h"
#include "XClient.h"

namespace vantorel::test {
namespace {

using ::testing::HasSubstr;
using Kind = XClient::Event::Kind;

constexpr std::uint8_t xKey(int linuxKeyCode) { return static_cast<std::uint8_t>(linuxKeyCode + 8); }
constexpr std::uint8_t escapeKey = xKey(KEY_ESC);
constexpr std::uint8_t spaceKey = xKey(KEY_SPACE);

class Headless : public ::testing::Test {
 protected:
  /// Starts the program with `arguments` and waits until it has plugged in and adopted a pad.
  Process& start(const std::vector<std::string>& arguments = {}) {
    std::vector<std::string> all{"--headless"};
    all.insert(all.end(), arguments.begin(), arguments.end());
    process = std::make_unique<Process>(VANTOREL_PROGRAM, all, session.environment());
    expectOutput("热键已注册");
    session.pads("attach pad");
    expectOutput("A按钮处理器已设置");
    return *process;
  }

  void expectOutput(const std::string& text) {
    ASSERT_TRUE(waitUntil([&] { return process->output().find(text) != std::string::npos; }))
        << "no \"" << text << "\" in:\n"
        << process->output() << process->errorOutput();
  }

  std::size_t outputCount(const std::string& text) const {
    std::size_t count = 0;
    const std::string output = process->output();
    for (std::size_t at = output.find(text); at != std::string::npos; at = output.find(text, at + 1)) ++count;
    return count;
  }

  /// The hot key, sent by another client as a keyboard would.
  void pressHotKey() { client.type(xKey(KEY_M), {xKey(KEY_LEFTMETA), xKey(KEY_LEFTSHIFT)}); }

  DesktopSession session;
  XClient client{session.server()};
  std::unique_ptr<Process> process;
};

TEST_F(Headless, ButtonBArrivesAsEscapeTwiceAndStaysDownFiftyMilliseconds) {
  start();
  session.pads("button pad buttonB 1");
  ASSERT_TRUE(waitUntil([&] { return client.count(Kind::keyUp, escapeKey) == 2; })) << process->output();
  session.pads("button pad buttonB 0");
  const auto events = client.events(escapeKey);
  ASSERT_EQ(events.size(), 4U);
  EXPECT_EQ(events[0].kind, Kind::keyDown);
  EXPECT_EQ(events[1].kind, Kind::keyUp);
  EXPECT_EQ(events[2].kind, Kind::keyDown);
  EXPECT_EQ(events[3].kind, Kind::keyUp);
  // The server's clock counts whole milliseconds, so that 50 ms may show as 49.
  EXPECT_GE(events[1].time - events[0].time, 49U);
  EXPECT_GE(events[3].time - events[2].time, 49U);
}

TEST_F(Headless, ButtonAArrivesAsSpaceOnce) {
  start();
  session.pads("button pad buttonA 1");
  ASSERT_TRUE(waitUntil([&] { return client.count(Kind::keyUp, spaceKey) == 1; })) << process->output();
  session.pads("button pad buttonA 0");
  // The press of B comes after everything that A may still cause.
  session.pads("button pad buttonB 1");
  ASSERT_TRUE(waitUntil([&] { return client.count(Kind::keyUp, escapeKey) == 2; })) << process->output();
  EXPECT_EQ(client.count(Kind::keyDown, spaceKey), 1U);
}

TEST_F(Headless, MappingOffSendsNothing) {
  start({"--mapping", "off"});
  session.pads("button pad buttonB 1");
  expectOutput("B 未设置映射");
  EXPECT_EQ(client.count(Kind::keyDown, escapeKey), 0U);
}

TEST_F(Headless, TheLeftStickMovesThePointerByFifteenPointsATick) {
  client.movePointer({100, 400});
  start({"--thumbsticks", "on"});
  const auto began = client.pointer();
  session.pads("axis pad leftx 32767");
  ASSERT_TRUE(waitUntil([&] { return client.pointer().x >= began.x + 300; }));
  session.pads("axis pad leftx 0");
  session.pads("button pad leftThumbstick 1");
  // The click comes from a tick that saw the stick centred.
  ASSERT_TRUE(waitUntil([&] { return client.count(Kind::buttonUp, 1) == 1; })) << process->output();
  const XClient::Pixel last = client.pointer();
  EXPECT_EQ(last.y, 400);
  if (last.x < 1279) {
    EXPECT_EQ((last.x - began.x) % 15, 0) << last.x;
  }
}

TEST_F(Headless, PressingTheLeftStickClicksOnce) {
  client.movePointer({200, 200});
  start({"--thumbsticks", "on"});
  session.pads("button pad leftThumbstick 1");
  ASSERT_TRUE(waitUntil([&] { return client.count(Kind::buttonUp, 1) == 1; })) << process->output();
  session.pads("axis pad righty -32767");  // goes on for many ticks with the stick held down
  ASSERT_TRUE(waitUntil([&] { return client.count(Kind::buttonUp, 4) >= 2; })) << process->output();
  EXPECT_EQ(client.count(Kind::buttonDown, 1), 1U);
}

TEST_F(Headless, TheRightStickScrollsUpAndRight) {
  client.movePointer({200, 200});
  start({"--thumbsticks", "on"});
  session.pads("axis pad righty -32767");
  ASSERT_TRUE(waitUntil([&] { return client.count(Kind::buttonDown, 4) >= 2; })) << process->output();
  session.pads("axis pad righty 0");
  session.pads("axis pad rightx 32767");
  ASSERT_TRUE(waitUntil([&] { return client.count(Kind::buttonDown, 7) >= 2; })) << process->output();
  EXPECT_EQ(client.count(Kind::buttonDown, 5), 0U);
  EXPECT_EQ(client.count(Kind::buttonDown, 6), 0U);
}

TEST_F(Headless, TheHotKeyTogglesMappingWhileAnotherWindowHasTheFocus) {
  start();
  pressHotKey();
  expectOutput("已清空按键映射");
  pressHotKey();
  ASSERT_TRUE(waitUntil([&] { return outputCount("已更新 8 个按键映射") == 2; })) << process->output();
}

TEST_F(Headless, UnpluggingWithADeflectedStickStopsThePointer) {
  client.movePointer({100, 400});
  start({"--thumbsticks", "on"});
  session.pads("axis pad leftx 8000");
  ASSERT_TRUE(waitUntil([&] { return client.pointer().x > 120; }));
  session.pads("detach pad");
  expectOutput("手柄已断开");
  XClient::Pixel last = client.pointer();
  ASSERT_TRUE(waitUntil([&] {
    std::this_thread::sleep_for(std::chrono::milliseconds(60));  // some ticks
    return client.pointer() == std::exchange(last, client.pointer());
  }));
  EXPECT_LT(last.x, 1279) << "it met the edge instead of stopping";
}

TEST_F(Headless, SigtermInTheMiddleOfAPressLeavesNoKeyDown) {
  start();
  session.pads("button pad buttonB 1");
  ASSERT_TRUE(waitUntil([&] { return client.count(Kind::keyDown, escapeKey) >= 1; }));
  process->signal(SIGTERM);
  EXPECT_EQ(process->waitForExit(), 0) << process->errorOutput();
  EXPECT_FALSE(client.isAnyKeyDown());
  EXPECT_EQ(client.count(Kind::keyDown, escapeKey), client.count(Kind::keyUp, escapeKey));
}

TEST_F(Headless, SigintEndsWithStatusZero) {
  start({"--mapping", "off"}).signal(SIGINT);
  EXPECT_EQ(process->waitForExit(), 0) << process->errorOutput();
}

TEST_F(Headless, ALostConnectionEndsWithAMessage) {
  start();
  session.server().process().signal(SIGKILL);
  const auto status = process->waitForExit();
  ASSERT_TRUE(status.has_value());
  EXPECT_NE(*status, 0);
  EXPECT_THAT(process->errorOutput(), HasSubstr("connection to the X server is lost"));
}

TEST_F(Headless, ToggleFlipsTheMappingOfTheRunningProgram) {
  start();
  Process toggle(VANTOREL_PROGRAM, {"--toggle"}, session.environment());
  EXPECT_EQ(toggle.waitForExit(), 0) << toggle.errorOutput();
  expectOutput("已清空按键映射");
}

TEST_F(Headless, QuitEndsTheRunningProgram) {
  start();
  Process quit(VANTOREL_PROGRAM, {"--quit"}, session.environment());
  EXPECT_EQ(quit.waitForExit(), 0) << quit.errorOutput();
  EXPECT_EQ(process->waitForExit(), 0);
}

TEST_F(Headless, ShowIsRefusedWithAReason) {
  start();
  Process show(VANTOREL_PROGRAM, {"--show"}, session.environment());
  EXPECT_EQ(show.waitForExit(), 1);
  EXPECT_THAT(show.errorOutput(), HasSubstr("window"));
}

TEST_F(Headless, ASecondStartSaysThatOneIsRunning) {
  start();
  for (const std::vector<std::string>& arguments : {std::vector<std::string>{"--headless"}, {}}) {
    Process second(VANTOREL_PROGRAM, arguments, session.environment());
    EXPECT_EQ(second.waitForExit(), 1);
    EXPECT_THAT(second.errorOutput(), HasSubstr("running"));
  }
  EXPECT_TRUE(process->isRunning());
}

TEST_F(Headless, ATakenHotKeyIsReportedAndMappingWorks) {
  DesktopSession other;  // keeps its own bus, so that both programs run
  auto environment = other.environment();
  environment.front() = session.server().environment();
  Process first(VANTOREL_PROGRAM, {"--headless", "--mapping", "off"}, environment);
  ASSERT_TRUE(waitUntil([&] { return first.output().find("热键已注册") != std::string::npos; }));
  process = std::make_unique<Process>(VANTOREL_PROGRAM, std::vector<std::string>{"--headless"},
                                      session.environment());
  expectOutput("❌ 热键注册失败: -9878");
  session.pads("attach pad");
  expectOutput("A按钮处理器已设置");
  session.pads("button pad buttonB 1");
  EXPECT_TRUE(waitUntil([&] { return client.count(Kind::keyUp, escapeKey) == 2; }));
}

TEST_F(Headless, MappingsAreSavedInTheSettingsOfTheUser) {
  start();
  EXPECT_TRUE(std::filesystem::exists(session.settings() / "vantorel"));
}

}  // namespace
}  // namespace vantorel::test
