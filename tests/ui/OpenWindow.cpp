#include "OpenWindow.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QTest>
#include <algorithm>

namespace vantorel {
namespace {

Platform servicesOf(Platform ports, StatusBar* otherStatusBar) {
  return {ports.mainQueue,
          ports.timers,
          ports.clock,
          ports.standardOutput,
          ports.accessibility,
          ports.eventPoster,
          ports.gameControllers,
          ports.hotKeys,
          otherStatusBar != nullptr ? *otherStatusBar : ports.statusBar,
          ports.application,
          ports.workspace,
          ports.userDefaults,
          ports.fileManager};
}

}  // namespace

OpenWindow::OpenWindow(StatusBar* otherStatusBar)
    : services(servicesOf(platform.ports(), otherStatusBar)),
      window(std::make_unique<MainWindow>(state,
                                          MainWindow::Actions{[this] { requests.emplace_back("new window"); },
                                                              [this] { requests.emplace_back("closed"); },
                                                              [this] { requests.emplace_back("quit"); }})) {
  state.appear();
  window->show();
  settle();
}

void OpenWindow::settle() {
  constexpr int rounds =
      12;  // a change of a text is a change of its panel, then of the row, then of the page
  for (int round = 0; round < rounds; ++round) {
    platform.time.settle();
    QApplication::processEvents();
  }
}

void OpenWindow::resizeContent(int width, int height) {
  window->resize(window->size() + QSize(width, height) - content().size());
  settle();
}

void OpenWindow::activate() const {
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get(), 30000));
}

QWidget* OpenWindow::find(const QString& name) const {
  for (QWidget* const widget : window->findChildren<QWidget*>()) {
    if (widget->isVisible() && accessibleName(*widget) == name) return widget;
  }
  return nullptr;
}

void OpenWindow::click(const QString& name) {
  QTest::mouseClick(control(name), Qt::LeftButton);
  settle();
}

void OpenWindow::key(Qt::Key code, Qt::KeyboardModifiers modifiers) {
  QTest::keyClick(window->windowHandle(), code, modifiers);
  settle();
}

QStringList OpenWindow::labels(const QWidget& widget) {
  QStringList texts;
  for (const QLabel* const label : widget.findChildren<QLabel*>()) {
    if (label->isVisible()) texts += label->text();
  }
  return texts;
}

std::shared_ptr<EmbeddedController> OpenWindow::plug(const std::string& name, const std::string& category) {
  auto controller = platform.gameControllers.declare({name, category, ControllerProfile::extended, {}});
  platform.gameControllers.plug(controller);
  settle();
  return controller;
}

void OpenWindow::press(EmbeddedController& controller, GamepadButton button) {
  constexpr std::chrono::milliseconds untilNoticed{200};
  controller.press(button);
  platform.time.advance(untilNoticed);
  controller.release(button);
  platform.time.advance(untilNoticed);
  settle();
}

bool OpenWindow::recorded(const std::string& text) const { return timesRecorded(text) > 0; }

int OpenWindow::timesRecorded(const std::string& text) const {
  return static_cast<int>(std::count_if(transcript.begin(), transcript.end(),
                                        [&](const std::string& line) { return line.ends_with(text); }));
}

QString accessibleName(QWidget& widget) {
  QAccessibleInterface* const interface = QAccessible::queryAccessibleInterface(&widget);
  return interface != nullptr ? interface->text(QAccessible::Name) : QString();
}

}  // namespace vantorel
