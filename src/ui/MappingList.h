#pragma once

#include <QWidget>
#include <array>

#include "GamepadButton.h"
#include "Subscription.h"
#include "WindowState.h"

namespace vantorel {

class MappingRow;
class TextLine;

/// All sixteen buttons with the key that each sends, under a headline that says when mapping is off. A click
/// on a row opens the key picker for its button. Follows the window's state by itself.
class MappingList : public QWidget {
  Q_OBJECT

 public:
  /// `windowState` outlives the widget.
  explicit MappingList(WindowState& windowState, QWidget* parent = nullptr);

  /// The row of `button`.
  MappingRow* row(GamepadButton button) const;

 private:
  QWidget* makeHeader();
  QWidget* makeBox();
  void showTexts();
  void showRows() const;
  void showOfflineMark();

  WindowState& state;
  TextLine* title = nullptr;
  TextLine* offlineMark = nullptr;
  std::array<MappingRow*, gamepadButtonCount> rows{};
  std::array<Subscription, 4> observations;
};

}  // namespace vantorel
