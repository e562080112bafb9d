#include "ConnectionPanel.h"

#include "BuiltInFonts.h"
#include "LongestTexts.h"
#include "TextLine.h"

namespace vantorel {

namespace {

constexpr int iconSize = 32;
/// A name of 127 characters, the most that the kernel tells, in words of the usual length fits into these at
/// the least width of the window.
constexpr int linesOfName = 10;

constexpr const char* tagText = "SYS_CONNECTION";
constexpr BilingualText tagHint{"Shows whether a game controller is connected.", "显示是否已连接游戏手柄。"};
constexpr BilingualText online{"[ ONLINE ]", "[ 在线 ]"};
constexpr BilingualText disconnected{"[ DISCONNECTED ]", "[ DISCONNECTED ]"};
constexpr BilingualText noDevice{"NO DEVICE FOUND", "未发现设备"};

QString inputLine(const QString& value) { return QStringLiteral("INPUT: ") + value; }

QString nameOf(GamepadButton button, AppLanguage language) { return fromCore(displayName(button, language)); }

/// All lines that can come, so that room for the longest is kept.
QStringList inputLines(AppLanguage language) {
  QStringList lines;
  for (const GamepadButton button : allGamepadButtons()) lines += inputLine(nameOf(button, language));
  return lines;
}

}  // namespace

ConnectionPanel::ConnectionPanel(WindowState& windowState, QWidget* parent)
    : Panel(windowState, retroCard(AppTheme::borderColor()), parent),
      tag(addTag()),
      icon(new IconView(Icon::unpluggedCable, iconSize, AppTheme::accent(), this)),
      status(new StatusBadge(this)) {
  add(icon, Qt::AlignHCenter);
  add(status);
  device = addLine();
  addSpace();
  input = addLine(QFont::Bold);
  input->reserveFor(longestInEach(inputLines));
  device->reserveLines(linesOfName);
  status->reserveFor(online.inBoth() + disconnected.inBoth());
  const GameControllerManager& manager = state.controllerManager;
  follow([this] { refresh(); }, manager.isControllerConnected, manager.connectedControllerName,
         manager.lastButtonPressed);
}

void ConnectionPanel::refresh() {
  const GameControllerManager& manager = state.controllerManager;
  const bool isConnected = manager.isControllerConnected;
  tag->setText(QString::fromUtf8(tagText));
  tag->setToolTip(local(tagHint));
  icon->setIcon(isConnected ? Icon::controller : Icon::unpluggedCable);
  icon->setColor(isConnected ? AppTheme::success() : AppTheme::accent());
  status->showState(local(isConnected ? online : disconnected), isConnected);
  device->setText(isConnected ? foreignText(manager.connectedControllerName.get()) : local(noDevice));
  input->setText(inputLine(latestInput()));
}

QString ConnectionPanel::latestInput() const {
  const auto button = state.controllerManager.lastButtonPressed.get();
  return button ? nameOf(*button, state.localization.currentLanguage()) : QStringLiteral("---");
}

}  // namespace vantorel
