#pragma once

#include <functional>
#include <string>

#include "Workspace.h"

namespace vantorel {

/// Opens web addresses in the user's browser. Main thread.
class DesktopWorkspace : public Workspace {
 public:
  /// What it leaves to the program. None is null.
  struct Handlers {
    /// In place of the system's settings: the program's own page about the permission.
    std::function<void()> openSettings;
    std::function<void(const std::string& address)> cannotOpen;
  };

  explicit DesktopWorkspace(Handlers programHandlers);

  /// What cannot be opened is told in one line on standard error as well.
  void open(const std::string& address) override;

 private:
  Handlers handlers;
};

}  // namespace vantorel
