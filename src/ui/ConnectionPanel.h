#pragma once

#include "Icons.h"
#include "Panel.h"
#include "StatusBadge.h"

namespace vantorel {

/// Whether a controller is connected, which one, and the latest input from it.
class ConnectionPanel final : public Panel {
 public:
  explicit ConnectionPanel(WindowState& windowState, QWidget* parent = nullptr);

 private:
  void refresh();
  QString latestInput() const;

  SectionTag* tag;
  IconView* icon;
  StatusBadge* status;
  WrappingLabel* device;
  WrappingLabel* input;
};

}  // namespace vantorel
