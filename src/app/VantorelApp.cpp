#include "VantorelApp.h"

namespace vantorel {

WindowState& VantorelApp::openWindow() {
  windows.push_back(std::make_unique<WindowState>(services));
  return *windows.back();
}

void VantorelApp::closeWindow(const WindowState& window) {
  std::erase_if(windows, [&](const auto& open) { return open.get() == &window; });
  if (!windows.empty()) windows.back()->appear();
}

}  // namespace vantorel
