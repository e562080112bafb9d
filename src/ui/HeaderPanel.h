#pragma once

#include <QHBoxLayout>
#include <QLayout>

#include "CardFrame.h"
#include "LanguageMenu.h"
#include "SectionTag.h"
#include "ViewUpdates.h"
#include "WindowState.h"
#include "WrappingLabel.h"

namespace vantorel {

/// The window's headline: the name and version, the hot key, and the language menu. It is heavier than the
/// cards below.
class HeaderPanel : public CardFrame {
 public:
  /// `windowState` outlives the widget.
  explicit HeaderPanel(WindowState& windowState, QWidget* parent = nullptr);

 private:
  QLayout* makeTitleColumn();
  QLayout* makeHotKeyColumn();
  void refresh();

  WindowState& state;
  WrappingLabel* title;
  WrappingLabel* status;
  SectionTag* hotKeyTag;
  WrappingLabel* hotKeyHint;
  ViewUpdates updates;
};

}  // namespace vantorel
