#pragma once

#include <QRect>
#include <QWidget>
#include <functional>
#include <optional>

#include "AppLanguage.h"
#include "GamepadButton.h"
#include "KeyboardKey.h"

namespace vantorel {

class CloseButton;
class KeyGrid;
class RetroScrollArea;
class TextLine;

/// The panel on which the key of one controller button is chosen: a title bar with a close button, and all
/// keys in a scrolling area below. It marks the present key, if there is one.
class KeyPickerView : public QWidget {
  Q_OBJECT

 public:
  static constexpr QSize fullSize{500, 600};

  /// `onSelect` is called with the chosen key, `dismiss` when the user closes the panel instead.
  KeyPickerView(GamepadButton gamepadButton, std::optional<KeyboardKey> currentMapping,
                const std::function<void(KeyboardKey)>& onSelect, std::function<void()> dismiss,
                QWidget* parent = nullptr);

  GamepadButton gamepadButton() const { return editedButton; }

  /// Shows all texts in `language`; the focus and what is scrolled into view stay.
  void showLanguage(AppLanguage language);

  /// Gives the keyboard to the present key, or to the first one.
  void focusCurrentKey();
  /// Gives the keyboard to the next or the previous control, around the end.
  void moveFocus(bool next);

  TextLine* titleLine() const { return title; }
  CloseButton* closeButton() const { return closer; }
  RetroScrollArea* scrollArea() const { return area; }
  KeyGrid* keyGrid() const { return grid; }

  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void arrange();
  void reveal(const QRect& key);

  GamepadButton editedButton;
  TextLine* title;
  CloseButton* closer;
  RetroScrollArea* area;
  KeyGrid* grid;
};

}  // namespace vantorel
