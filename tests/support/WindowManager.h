#pragma once

#include "Process.h"
#include "TemporaryDirectory.h"
#include "XServer.h"

namespace vantorel::test {

/// A window manager (openbox with its standard settings) on the display of `server`.
class WindowManager {
 public:
  /// Returns once it manages windows; throws when it does not start.
  explicit WindowManager(const XServer& server);

 private:
  TemporaryDirectory home_;
  Process process_;
};

}  // namespace vantorel::test
