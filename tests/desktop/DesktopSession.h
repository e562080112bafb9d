#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "FileDescriptor.h"
#include "MessageBus.h"
#include "Process.h"
#include "TemporaryDirectory.h"
#include "WindowManager.h"
#include "XServer.h"

namespace vantorel::test {

/// A user's session of its own: an X server with a window manager, a message bus, settings, and virtual pads.
class DesktopSession {
 public:
  /// `serverArguments` are added to the X server's command line; `services` are those installed ones that the
  /// message bus starts when they are asked for.
  explicit DesktopSession(const std::vector<std::string>& serverArguments = {},
                          const std::vector<std::string>& services = {});

  const XServer& server() const { return server_; }
  XServer& server() { return server_; }
  const MessageBus& bus() const { return bus_; }

  /// What a program of this session finds in its environment.
  std::vector<std::string> environment() const;

  /// The directory of the user's settings.
  std::filesystem::path settings() const { return directory_.path() / "config"; }

  /// A line for the virtual pads of the program that runs, such as "attach pad" or "button pad buttonB 1".
  void pads(const std::string& line) const;

 private:
  TemporaryDirectory directory_;
  XServer server_;
  WindowManager windowManager_;
  MessageBus bus_;
  FileDescriptor pipe_;
};

}  // namespace vantorel::test
