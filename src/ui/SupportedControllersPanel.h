#pragma once

#include <array>

#include "Panel.h"

namespace vantorel {

/// The families of controllers, and the way to the driver that one of them needs elsewhere.
class SupportedControllersPanel final : public Panel {
 public:
  explicit SupportedControllersPanel(WindowState& windowState, QWidget* parent = nullptr);

 private:
  void refresh();

  SectionTag* tag;
  std::array<WrappingLabel*, 4> families;
  WrappingLabel* note;
  RetroButton* download;
};

}  // namespace vantorel
