#pragma once

#include <QString>
#include <functional>

#include "BilingualText.h"
#include "CardFrame.h"
#include "RetroButton.h"
#include "RetroCheckBox.h"
#include "SectionTag.h"
#include "ViewUpdates.h"
#include "WindowState.h"
#include "WrappingLabel.h"

namespace vantorel {

/// One card of the window's row of panels. Its content stands at its top, in lines that wrap; it takes
/// whatever width the row gives it.
class Panel : public CardFrame {
 protected:
  /// `windowState` outlives the panel.
  Panel(WindowState& windowState, const CardStyle& style, QWidget* parent);

  /// Puts `widget` at the end of the panel's content.
  void add(QWidget* widget, Qt::Alignment alignment = {});
  /// Puts all the height there that the row has and this panel does not need.
  void addSpace();
  /// Puts the panel's title there.
  SectionTag* addTag();
  /// Puts a line of text in the caption size there.
  WrappingLabel* addLine(QFont::Weight weight = QFont::Normal);
  /// Puts a switch there, which stands first; it runs `flip` with its new state.
  RetroCheckBox* addSwitch(std::function<void(bool isOn)> flip);
  /// Puts a button there, which runs `action`.
  RetroButton* addButton(const QColor& color, std::function<void()> action);

  /// Runs `refresh` now, and after each change of the language or of one of `values`.
  template <class... Values>
  void follow(std::function<void()> refresh, const Published<Values>&... values) {
    updates.follow(std::move(refresh), state.localization.currentLanguage(), values...);
  }

  /// `text` in the current language.
  QString local(const BilingualText& text) const;

  WindowState& state;

 private:
  QVBoxLayout* destination;  ///< where content goes
  ViewUpdates updates;
};

}  // namespace vantorel
