#include "MenuBarPanel.h"

#include "Typography.h"

namespace vantorel {

namespace {

constexpr int hintSize = 9;

constexpr BilingualText switchText{"MENU_BAR_MODE", "菜单栏模式"};
constexpr BilingualText switchHint{
    "Takes the window out of the task bar and puts a menu into the status bar.",
    "将窗口移出任务栏，并在状态栏中显示菜单。"};
constexpr BilingualText hiddenText{"App is hidden in menu bar", "App is hidden in menu bar"};
constexpr BilingualText noStatusBarText{"No status bar on this desktop: the window stays in the task bar",
                                        "此桌面没有状态栏：窗口仍保留在任务栏中"};

}  // namespace

MenuBarPanel::MenuBarPanel(WindowState& windowState, QWidget* parent)
    : Panel(windowState, retroCard(AppTheme::borderColor()), parent),
      menuBarMode(addSwitch([this](bool isOn) { flip(isOn); })),
      hint(new WrappingLabel(monospaced(hintSize), AppTheme::secondaryText(), this)) {
  add(hint);
  addSpace();
  follow([this] { refresh(); }, state.menuBarManager.isMenuBarMode, state.statusBarIsPresent());
}

void MenuBarPanel::flip(bool isOn) {
  if (isOn != state.menuBarManager.isMenuBarMode) state.setMenuBarMode(isOn);
}

void MenuBarPanel::refresh() {
  const bool isOn = state.menuBarManager.isMenuBarMode;
  menuBarMode->setText(local(switchText));
  menuBarMode->setToolTip(local(switchHint));
  menuBarMode->setChecked(isOn);
  hint->setText(local(state.statusBarIsPresent() ? hiddenText : noStatusBarText));
  hint->setVisible(isOn);
}

}  // namespace vantorel
