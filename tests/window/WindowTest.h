#pragma once

#include <X11/keysym.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "DesktopSession.h"
#include "ManagedWindows.h"
#include "Process.h"
#include "Screen.h"
#include "StatusNotifierHost.h"

namespace vantorel::test {

/// The program with its window in a session of its own, which has no status bar at first.
class WindowTest : public testing::Test {
 protected:
  explicit WindowTest(const std::vector<std::string>& serverArguments = {})
      : session(serverArguments, {"org.a11y.Bus"}) {}

  /// Ends the program as a session does, if the test left it running.
  void TearDown() override;

  /// Starts the program, with `environment` besides the usual, and waits until its window has the keyboard
  /// and the hot key is there.
  void start(const std::vector<std::string>& environment = {});

  /// The same in two steps: begins to start, and waits.
  void launch(const std::vector<std::string>& environment = {});
  void waitForWindow();

  /// Starts the program a second time with `arguments` and returns its exit status.
  int startAgain(const std::vector<std::string>& arguments = {});

  /// The program's only window; XCB_NONE when there is none or more than one.
  xcb_window_t window() const;
  std::size_t windowCount() const { return windows.titled("Vantorel").size(); }

  /// Whether the program's only window is above all others and has the keyboard.
  bool isInFront() const;

  bool isListed() const { return !screen.skipsTaskBar(window()) && !screen.skipsPager(window()); }
  bool isUnlisted() const { return screen.skipsTaskBar(window()) && screen.skipsPager(window()); }

  /// Closes the program's window as a click on its frame does, and waits until it is gone.
  void closeWindow();

  /// Uses the program as a screen reader does, by the steps of screen_reader.py. Throws where one fails.
  void readScreen(const std::vector<std::string>& steps) const;

  void startHost() { host = std::make_unique<StatusNotifierHost>(session.bus().address()); }
  void startTray();

  /// Waits, while Qt's event loop turns, until `condition` holds.
  static bool eventually(const std::function<bool()>& condition);

  /// The same for what a test needs to go on: it throws, telling `what` does not come.
  static void require(const std::string& what, const std::function<bool()>& condition);

  std::size_t outputCount(const std::string& text) const;
  bool eventuallySays(const std::string& text, std::size_t times = 1) const;

  /// What the program says when the mapping switch goes on and off.
  static constexpr const char* mappingOn = "已更新 8 个按键映射";
  static constexpr const char* mappingOff = "已清空按键映射";

  DesktopSession session;
  Screen screen{session.server().display()};
  ManagedWindows windows{session.server().display()};
  std::unique_ptr<StatusNotifierHost> host;
  std::unique_ptr<Process> tray;
  std::unique_ptr<Process> program;
};

}  // namespace vantorel::test
