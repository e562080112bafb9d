#include "MainWindow.h"

#include <QShortcut>

#include "BilingualText.h"
#include "KeyPickerSheet.h"
#include "RetroMenu.h"
#include "RetroMenuBar.h"

namespace vantorel {

namespace {

constexpr int usualTitleBar = 32;  // nobody knows that of the desktop before the window shows

constexpr BilingualText fileText{"&File", "文件(&F)"};
constexpr BilingualText newWindowText{"&New Window", "新建窗口(&N)"};
constexpr BilingualText closeWindowText{"&Close Window", "关闭窗口(&C)"};
constexpr BilingualText quitText{"&Quit", "退出(&Q)"};

}  // namespace

MainWindow::MainWindow(WindowState& windowState, Actions windowActions)
    : state(windowState),
      actions(std::move(windowActions)),
      pages(new QStackedWidget(this)),
      content(new ContentView(state, pages)) {
  setWindowTitle(QStringLiteral("Vantorel"));
  pages->addWidget(content);
  setCentralWidget(pages);
  fillMenuBar();
  content->setFocus();
  new KeyPickerSheet(state, this);
  resize(sizeHint());  // also where Qt would find that too large for the screen
  updates.follow([this] { refresh(); }, state.localization.currentLanguage());
}

void MainWindow::fitInto(QSize room) {
  room.rheight() -= usualTitleBar;
  const QSize forContent = room - QSize(0, menuBar()->minimumHeight());
  content->setMinimumSize(content->minimumSize().boundedTo(forContent));
  pages->updateGeometry();             // tells the window's layout, which would ask only once it is shown
  resize(sizeHint().boundedTo(room));  // left to itself, Qt would keep it to two thirds of the screen
}

/// Alt and F10 lead to it.
void MainWindow::fillMenuBar() {
  setMenuBar(new RetroMenuBar(this));
  fileMenu = new RetroMenu(this);
  menuBar()->addMenu(fileMenu);
  newWindow = addCommand(QKeySequence(Qt::CTRL | Qt::Key_N), [this] { actions.newWindow(); });
  closeWindow = addCommand(QKeySequence(Qt::CTRL | Qt::Key_W), [this] { close(); });
  fileMenu->addSeparator();
  quit = addCommand(QKeySequence(Qt::CTRL | Qt::Key_Q), [this] { actions.quit(); });
  auto* open = new QShortcut(QKeySequence(Qt::Key_F10), this);
  connect(open, &QShortcut::activated, this, &MainWindow::openMenu);
}

QAction* MainWindow::addCommand(const QKeySequence& keys, std::function<void()> command) {
  QAction* const entry = fileMenu->addAction(QString());
  entry->setShortcut(keys);
  connect(entry, &QAction::triggered, this, std::move(command));
  return entry;
}

void MainWindow::openMenu() {
  menuBar()->setActiveAction(fileMenu->menuAction());
  fileMenu->setActiveAction(newWindow);
}

void MainWindow::showRemedy(const Remedy& remedy) {
  if (remedyPage == nullptr) {
    remedyPage = new RemedyView(
        state, [this] { showContent(); }, pages);
    pages->addWidget(remedyPage);
  }
  remedyPage->setRemedy(remedy);
  pages->setCurrentWidget(remedyPage);
}

void MainWindow::showContent() {
  pages->setCurrentWidget(content);
  content->setFocus(Qt::OtherFocusReason);
}

void MainWindow::closeEvent(QCloseEvent* event) {
  event->accept();
  actions.closed();
}

void MainWindow::refresh() {
  const AppLanguage language = state.localization.currentLanguage();
  fileMenu->setTitle(fileText.in(language));
  newWindow->setText(newWindowText.in(language));
  closeWindow->setText(closeWindowText.in(language));
  quit->setText(quitText.in(language));
}

}  // namespace vantorel
