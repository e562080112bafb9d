#pragma once

#include <QPointer>
#include <QWidget>
#include <array>

#include "GamepadButton.h"
#include "Subscription.h"
#include "WindowState.h"

namespace vantorel {

class KeyPickerView;

/// Lays the key picker over a window while a button is selected: dims all of the window and keeps mouse and
/// keyboard to the picker. Escape closes it; the keyboard then returns to where it was.
class KeyPickerSheet : public QWidget {
  Q_OBJECT

 public:
  /// Covers `window`, whatever its size becomes. `windowState` outlives the widget.
  KeyPickerSheet(WindowState& windowState, QWidget* window);

  /// The open picker, or null.
  KeyPickerView* picker() const { return view; }

  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  void followSelection();
  void followLanguage();
  void showPicker(GamepadButton button);
  void removePicker();
  void keepFocus(QWidget* focused);
  void placePicker();

  WindowState& state;
  KeyPickerView* view = nullptr;
  QPointer<QWidget> focusBefore;
  std::array<Subscription, 2> observations;
};

}  // namespace vantorel
