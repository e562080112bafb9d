#pragma once

#include <QAction>
#include <QCloseEvent>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenu>
#include <QStackedWidget>
#include <functional>

#include "ContentView.h"
#include "Remedy.h"
#include "RemedyView.h"
#include "ViewUpdates.h"
#include "WindowState.h"

namespace vantorel {

/// A window of the program: its content, the standard menu, the page with a remedy in place of the content
/// while that is asked for, and the key picker over all of it.
class MainWindow : public QMainWindow {
 public:
  /// What the window asks of the program. None is null.
  struct Actions {
    std::function<void()> newWindow;
    /// The window was closed and hides; it is called while the window still deals with that.
    std::function<void()> closed;
    std::function<void()> quit;
  };

  /// `windowState` outlives the window.
  explicit MainWindow(WindowState& windowState, Actions windowActions);

  /// Takes the size of its content, or as much of that as fits into `room` with a title bar. The content's
  /// least size gives way where a screen is lower: the page scrolls then.
  void fitInto(QSize room);

  /// Shows `remedy` until the user goes back.
  void showRemedy(const Remedy& remedy);

  ContentView* contentView() const { return content; }

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void fillMenuBar();
  QAction* addCommand(const QKeySequence& keys, std::function<void()> command);
  void openMenu();
  void showContent();
  void refresh();

  WindowState& state;
  Actions actions;
  QStackedWidget* pages;
  ContentView* content;
  RemedyView* remedyPage = nullptr;  ///< made when it is first asked for
  QMenu* fileMenu = nullptr;
  QAction* newWindow = nullptr;
  QAction* closeWindow = nullptr;
  QAction* quit = nullptr;
  ViewUpdates updates;
};

}  // namespace vantorel
