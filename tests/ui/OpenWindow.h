#pragma once

#include <QPoint>
#include <QString>
#include <QStringList>
#include <QWidget>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "EmbeddedPlatform.h"
#include "MainWindow.h"
#include "VantorelApp.h"
#include "WrappingLabel.h"

namespace vantorel {

/// A desktop without a status bar, which may get one.
class AbsentStatusBar : public StatusBar {
 public:
  std::unique_ptr<StatusItem> makeStatusItem() override { return nullptr; }
  const Published<bool>& isPresent() const override { return present; }

  Published<bool> present{false};
};

/// The program with its window open, on a machine in memory, and the user's hands on it.
class OpenWindow {
 public:
  /// With `otherStatusBar` in place of the machine's own.
  explicit OpenWindow(StatusBar* otherStatusBar = nullptr);

  /// Lets everything happen that is due in the program and in its window.
  void settle();
  /// The same after resizing the content to `width` and `height`.
  void resizeContent(int width, int height);
  /// Gives the window the keyboard.
  void activate() const;

  /// The visible widget of a kind that assistive technology knows as `name`; a failure if there is none.
  template <class Widget = QWidget>
  Widget* control(const QString& name) const;

  /// Whether such a widget shows.
  bool shows(const QString& name) const { return find(name) != nullptr; }

  /// A click of the mouse in the middle of what is known as `name`, and what follows from it.
  void click(const QString& name);
  /// A key for the widget that has the keyboard.
  void key(Qt::Key code, Qt::KeyboardModifiers modifiers = {});

  /// The texts of all labels that show in `widget`, in the order of their making.
  static QStringList labels(const QWidget& widget);

  /// Plugs in a controller of this name and category.
  std::shared_ptr<EmbeddedController> plug(const std::string& name, const std::string& category);
  /// Presses and releases a button, with time for both to be noticed.
  void press(EmbeddedController& controller, GamepadButton button);

  /// Whether the machine has recorded a line that ends with `text`, after its time.
  bool recorded(const std::string& text) const;
  int timesRecorded(const std::string& text) const;

  ContentView& content() { return *window->contentView(); }
  Panel& panel(std::size_t index) { return *content().panels().at(index); }

  std::vector<std::string> transcript;
  std::vector<std::string> requests;  ///< what the window asked of the program
  EmbeddedPlatform platform{[this](std::string_view line) { transcript.emplace_back(line); }};
  Platform services;
  VantorelApp app{services};
  WindowState& state{app.openWindow()};
  std::unique_ptr<MainWindow> window;

 private:
  QWidget* find(const QString& name) const;
};

template <class Widget>
Widget* OpenWindow::control(const QString& name) const {
  auto* const widget = dynamic_cast<Widget*>(find(name));
  if (widget == nullptr) throw std::runtime_error("nothing is known as " + name.toStdString());
  return widget;
}

/// The name under which assistive technology knows `widget`.
QString accessibleName(QWidget& widget);

}  // namespace vantorel
