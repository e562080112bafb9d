#pragma once

#include <QWidget>
#include <functional>
#include <optional>
#include <vector>

#include "AppLanguage.h"
#include "KeyboardKey.h"

namespace vantorel {

class KeyButton;
class TextLine;

/// All keys in their sections, as rows of buttons within the contents margins. Its height is that of its
/// parts, in each language. Arrow keys, Home and End move the keyboard focus between the keys.
class KeyGrid : public QWidget {
  Q_OBJECT

 public:
  static constexpr int headingHeight = 16;
  static constexpr int headingGap = 8;  ///< between a heading and its keys

  /// `onSelect` is called with the key that is chosen; `currentMapping` is the one that is marked.
  KeyGrid(std::optional<KeyboardKey> currentMapping, const std::function<void(KeyboardKey)>& onSelect,
          QWidget* parent = nullptr);

  void showLanguage(AppLanguage language);

  /// All keys in the order in which they are read.
  const std::vector<KeyButton*>& keys() const { return buttons; }
  KeyButton* key(KeyboardKey wanted) const;

  /// The headings from top to bottom.
  const std::vector<TextLine*>& headings() const { return titles; }

  /// The height of all parts without the margins.
  static int contentHeight();

  QSize sizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void arrange();
  KeyButton* focusedKey() const;
  KeyButton* neighbour(int step) const;
  KeyButton* inNextRow(int direction) const;

  std::vector<TextLine*> titles;
  std::vector<KeyButton*> buttons;
};

}  // namespace vantorel
