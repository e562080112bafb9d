#pragma once

#include "Panel.h"

namespace vantorel {

/// The mapping switch, and the button that looks for the permission again.
class MappingSwitchPanel final : public Panel {
 public:
  explicit MappingSwitchPanel(WindowState& windowState, QWidget* parent = nullptr);

 private:
  void flip(bool isOn);
  void refresh();

  RetroCheckBox* activeMapping;
  RetroButton* refreshSystem;
};

}  // namespace vantorel
