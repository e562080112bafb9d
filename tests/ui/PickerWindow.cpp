#include "PickerWindow.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QVBoxLayout>
#include <chrono>

namespace vantorel {

PickerWindow::PickerWindow(QSize size)
    : other(new QPushButton(QStringLiteral("Other"), &window)),
      page(new RetroScrollArea(&window)),
      list(new MappingList(state)) {
  window.resize(size);
  auto* layout = new QVBoxLayout(&window);
  layout->addWidget(other);
  layout->addWidget(page);
  page->setContent(list);
  sheet = new KeyPickerSheet(state, &window);
}

void PickerWindow::activate() {
  window.show();
  window.activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&window, 30000));
}

void PickerWindow::pressOnController(GamepadButton button) {
  if (!controller) {
    controller =
        platform.gameControllers.declare({"Pad", "Extended Gamepad", ControllerProfile::extended, {}});
    platform.gameControllers.plug(controller);
    platform.time.settle();
  }
  controller->press(button);
  platform.time.advance(std::chrono::milliseconds(200));  // the A button is sampled
  controller->release(button);
  platform.time.settle();
}

std::string PickerWindow::storedMappings() const {
  return platform.userDefaults.data(mappingsKey).value_or("");
}

}  // namespace vantorel
