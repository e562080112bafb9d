#pragma once

#include <QAction>
#include <vector>

#include "RetroButton.h"
#include "RetroMenu.h"
#include "ViewUpdates.h"
#include "WindowState.h"

namespace vantorel {

/// The button that shows the language of the interface and opens the menu of all languages.
class LanguageMenu : public RetroButton {
 public:
  /// `windowState` outlives the widget.
  explicit LanguageMenu(WindowState& windowState, QWidget* parent = nullptr);

 private:
  void fillMenu();
  void openMenu();
  void refresh();

  WindowState& state;
  RetroMenu* menu;
  std::vector<QAction*> entries;  ///< in the order of the languages
  ViewUpdates updates;
};

}  // namespace vantorel
