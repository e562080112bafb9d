#pragma once

#include "Panel.h"
#include "StatusBadge.h"

namespace vantorel {

/// Whether the desktop lets the program send input, and the way to change it.
class PermissionPanel final : public Panel {
 public:
  explicit PermissionPanel(WindowState& windowState, QWidget* parent = nullptr);

 private:
  void refresh();

  SectionTag* tag;
  StatusBadge* granted;
  RetroButton* fix;
};

}  // namespace vantorel
