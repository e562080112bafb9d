#pragma once

#include <QLayout>
#include <QResizeEvent>
#include <QWidget>
#include <vector>

#include "MappingList.h"
#include "Panel.h"
#include "RetroScrollArea.h"
#include "WindowState.h"

namespace vantorel {

/// The program's window without its frame: the header, the row of panels, the mapping list and the log on a
/// page that scrolls.
class ContentView : public QWidget {
 public:
  /// The size that it should have where the screen has room.
  static constexpr QSize idealSize{1100, 800};

  /// `windowState` outlives the widget.
  explicit ContentView(WindowState& windowState, QWidget* parent = nullptr);

  QSize sizeHint() const override { return idealSize; }

  RetroScrollArea* scrollArea() const { return scroll; }
  /// The seven panels from left to right.
  const std::vector<Panel*>& panels() const { return row; }

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  QWidget* makePage();
  QLayout* makeRows(QWidget* page);
  QLayout* makePanelRow(QWidget* page);

  WindowState& state;
  QWidget* background;
  RetroScrollArea* scroll;
  std::vector<Panel*> row;
};

}  // namespace vantorel
