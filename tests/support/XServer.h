#pragma once

#include <string>
#include <vector>

#include "Process.h"

namespace vantorel::test {

/// An X server without a screen to look at, on a display of its own; it ends with this object.
class XServer {
 public:
  /// Returns once clients can connect; throws when the server does not start. `arguments` are added to the
  /// server's command line, such as "-extension", "XTEST".
  explicit XServer(const std::vector<std::string>& arguments = {});

  /// The name of the display, such as ":5".
  const std::string& display() const { return display_; }

  /// The display as an environment variable for a `Process`: "DISPLAY=:5".
  std::string environment() const { return "DISPLAY=" + display_; }

  Process& process() { return process_; }

 private:
  Process process_;
  std::string display_;
};

}  // namespace vantorel::test
