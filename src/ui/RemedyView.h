#pragma once

#include <QKeyEvent>
#include <QShowEvent>
#include <QWidget>
#include <array>
#include <functional>

#include "BilingualText.h"
#include "CardFrame.h"
#include "Remedy.h"
#include "RetroButton.h"
#include "SectionTag.h"
#include "ViewUpdates.h"
#include "WindowState.h"
#include "WrappingLabel.h"

namespace vantorel {

/// A page that tells what is missing on this desktop, why, and what the next step is. The Escape key and a
/// button lead back.
class RemedyView : public QWidget {
 public:
  /// `windowState` outlives the widget. `goBack` is called when the user has read it.
  RemedyView(WindowState& windowState, std::function<void()> goBack, QWidget* parent = nullptr);

  void setRemedy(const Remedy& remedy);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  struct Section {
    SectionTag* tag;
    WrappingLabel* text;
  };

  Section addSection();
  void refresh();

  WindowState& state;
  std::function<void()> leave;
  Remedy shown;
  QWidget* background;
  CardFrame* card;
  std::array<Section, 3> sections;
  RetroButton* back;
  ViewUpdates updates;
};

}  // namespace vantorel
