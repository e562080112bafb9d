#pragma once

#include <QStringList>

#include "CardFrame.h"
#include "RetroTextView.h"
#include "SectionTag.h"
#include "ViewUpdates.h"
#include "WindowState.h"

namespace vantorel {

/// The newest lines of the debug log, the newest first. What the user has selected in it stays selected when
/// further lines arrive, as long as it is there.
class DebugLogPanel : public CardFrame {
 public:
  /// `windowState` outlives the widget.
  explicit DebugLogPanel(WindowState& windowState, QWidget* parent = nullptr);

 private:
  void reserveRoom();
  void refresh();
  void showLines(const QStringList& lines);
  void prepend(const QStringList& lines);
  void dropLast(qsizetype lines);

  WindowState& state;
  SectionTag* tag;
  RetroTextView* log;
  QStringList shown;
  ViewUpdates updates;
};

}  // namespace vantorel
