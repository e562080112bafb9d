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

 protected:
  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* shownWindow, QEvent* event) override;

 private:
  void makeLog();
  void describe();
  void refresh();
  void showLines(const QStringList& lines);
  void prepend(const QStringList& lines);
  void dropLast(qsizetype lines);

  WindowState& state;
  SectionTag* tag;
  RetroTextView* log = nullptr;  ///< not before the first frame
  QStringList shown;
  ViewUpdates nameUpdates;
  ViewUpdates lineUpdates;
};

}  // namespace vantorel
