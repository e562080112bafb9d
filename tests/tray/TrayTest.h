#pragma once

#include <X11/keysym.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "MessageBus.h"
#include "Process.h"
#include "Screen.h"
#include "StatusNotifierHost.h"
#include "TemporaryDirectory.h"
#include "WindowManager.h"
#include "XServer.h"

namespace vantorel::test {

/// A desktop of its own for each test: X server, window manager and session bus, at first without a status
/// bar. The program under test runs in it as a process of its own.
class TrayTest : public testing::Test {
 protected:
  TrayTest();
  ~TrayTest() override;

  /// Ends the program, in whatever state the test left it.
  void TearDown() override;

  /// Starts the program under test and waits until it takes commands. `environment` is added to its own.
  void startProgram(std::vector<std::string> environment = {});

  /// Tells the program to do `command` (see TrayProgram.h) and waits until it has done so.
  void tell(const std::string& command);

  /// Waits, while Qt's event loop turns, until `condition` holds.
  static bool eventually(const std::function<bool()>& condition);

  bool hasSaid(const std::string& line) const;
  bool eventuallySays(const std::string& line) const;

  /// What the program has last published about the status bar.
  bool barIsThere() const;

  void startHost(StatusNotifierHost::Hosting hosting = StatusNotifierHost::Hosting::yes);
  void stopHost() { host.reset(); }
  void startTray();
  void stopTray() { tray.reset(); }

  bool itemIsHosted() const { return host && host->itemCount() == 1; }
  bool itemIsDocked() const { return screen.dockedIcons().size() == 1; }

  XServer server;
  WindowManager windowManager{server};
  MessageBus bus;
  Screen screen{server.display()};
  std::unique_ptr<StatusNotifierHost> host;
  std::unique_ptr<Process> tray;
  std::unique_ptr<Process> program;

 private:
  TemporaryDirectory directory;
  int commands = -1;
  std::size_t commandCount = 0;
};

}  // namespace vantorel::test
