#pragma once

#include "Panel.h"

namespace vantorel {

/// What is known about the controller, and the probe for its buttons.
class ControllerDetailsPanel final : public Panel {
 public:
  explicit ControllerDetailsPanel(WindowState& windowState, QWidget* parent = nullptr);

 private:
  void refresh();

  SectionTag* tag;
  WrappingLabel* extended;
  WrappingLabel* driver;
  WrappingLabel* lastKey;
  WrappingLabel* family;
  WrappingLabel* type;
  RetroButton* probe;
};

}  // namespace vantorel
