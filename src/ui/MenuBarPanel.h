#pragma once

#include "Panel.h"

namespace vantorel {

/// The switch of menu-bar mode, with a line about where the program is while it is on.
class MenuBarPanel final : public Panel {
 public:
  explicit MenuBarPanel(WindowState& windowState, QWidget* parent = nullptr);

 private:
  void flip(bool isOn);
  void refresh();

  RetroCheckBox* menuBarMode;
  WrappingLabel* hint;
};

}  // namespace vantorel
