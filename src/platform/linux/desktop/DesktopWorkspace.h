#pragma once

#include <functional>

#include "Workspace.h"

namespace vantorel {

/// Opens web addresses in the user's browser. Addresses of the system's settings lead to this program's own
/// page about the permission. Main thread.
class DesktopWorkspace : public Workspace {
 public:
  /// `openSettings` is called for every address of the system's settings.
  explicit DesktopWorkspace(std::function<void()> openSettings);

  /// What cannot be opened is told in one line on standard error.
  void open(const std::string& address) override;

 private:
  std::function<void()> openRemedy;
};

}  // namespace vantorel
