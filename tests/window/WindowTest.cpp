#include "WindowTest.h"

#include <QTest>
#include <csignal>
#include <iostream>
#include <stdexcept>

namespace vantorel::test {
namespace {

std::vector<std::string> joined(std::vector<std::string> first, const std::vector<std::string>& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

}  // namespace

void WindowTest::TearDown() {
  if (!program) return;
  program->signal(SIGTERM);
  // The event loop turns: the program may say farewell to the host in this process.
  EXPECT_TRUE(eventually([&] { return !program->isRunning(); }));
  EXPECT_EQ(program->waitForExit(), 0);
  if (HasFailure()) {
    std::cerr << "The program wrote:\n" << program->output() << program->errorOutput() << std::endl;
  }
}

void WindowTest::start(const std::vector<std::string>& environment) {
  launch(environment);
  waitForWindow();
}

void WindowTest::launch(const std::vector<std::string>& environment) {
  const auto usual = joined(session.environment(), {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1"});
  program =
      std::make_unique<Process>(VANTOREL_PROGRAM, std::vector<std::string>{}, joined(usual, environment));
}

void WindowTest::waitForWindow() {
  require("the window in front", [&] { return isInFront(); });
  require("the hot key", [&] { return outputCount("热键已注册") == 1; });
}

int WindowTest::startAgain(const std::vector<std::string>& arguments) {
  Process second(VANTOREL_PROGRAM, arguments, session.environment());
  EXPECT_TRUE(eventually([&] { return !second.isRunning(); })) << second.errorOutput();
  return second.waitForExit().value_or(-1);
}

xcb_window_t WindowTest::window() const {
  const auto all = windows.titled("Vantorel");
  return all.size() == 1 ? all.front() : xcb_window_t{XCB_NONE};
}

bool WindowTest::isInFront() const {
  const xcb_window_t only = window();
  return only != XCB_NONE && screen.isVisible(only) && windows.highest() == only && windows.active() == only;
}

void WindowTest::closeWindow() {
  windows.close(window());
  require("the closing of the window", [&] { return windowCount() == 0; });
}

void WindowTest::readScreen(const std::vector<std::string>& steps) const {
  const std::string script = VANTOREL_SOURCE_DIR "/tests/window/screen_reader.py";
  Process reader("/usr/bin/python3", joined({script}, steps), session.environment());
  if (!eventually([&] { return !reader.isRunning(); }) || reader.waitForExit() != 0) {
    throw std::runtime_error("the screen reader: " + reader.errorOutput());
  }
}

void WindowTest::startTray() {
  tray = std::make_unique<Process>(
      "trayer",
      std::vector<std::string>{"--edge", "bottom", "--align", "right", "--SetDockType", "true", "--expand",
                               "true", "--width", "10", "--height", "24"},
      session.environment());
}

bool WindowTest::eventually(const std::function<bool()>& condition) {
  return QTest::qWaitFor(condition, static_cast<int>(generousDeadline.count()));
}

void WindowTest::require(const std::string& what, const std::function<bool()>& condition) {
  if (!eventually(condition)) throw std::runtime_error("missing: " + what);
}

std::size_t WindowTest::outputCount(const std::string& text) const {
  std::size_t count = 0;
  const std::string output = program->output();
  for (std::size_t at = output.find(text); at != std::string::npos; at = output.find(text, at + 1)) ++count;
  return count;
}

bool WindowTest::eventuallySays(const std::string& text, std::size_t times) const {
  return eventually([&] { return outputCount(text) >= times; });
}

}  // namespace vantorel::test
