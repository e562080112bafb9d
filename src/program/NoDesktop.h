#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "Application.h"
#include "Published.h"
#include "StatusBar.h"
#include "Workspace.h"

namespace vantorel {

/// What a program without a window has in place of a desktop: no status bar, nobody to open addresses, and no
/// place in a task bar.
class NoDesktop final : public StatusBar, public Application, public Workspace {
 public:
  /// `endProgram` carries out `terminate`.
  explicit NoDesktop(std::function<void()> endProgram) : end(std::move(endProgram)) {}

  std::unique_ptr<StatusItem> makeStatusItem() override { return nullptr; }
  const Published<bool>& isPresent() const override { return hasStatusBar; }

  void setActivationPolicy(ActivationPolicy /*policy*/) override {}
  void terminate() override { end(); }

  void open(const std::string& /*address*/) override {}

 private:
  std::function<void()> end;
  Published<bool> hasStatusBar{false};
};

}  // namespace vantorel
