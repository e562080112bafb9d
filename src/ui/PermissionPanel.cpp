#include "PermissionPanel.h"

namespace vantorel {

namespace {

constexpr BilingualText tagText{"OS_ACCESSIBILITY", "系统辅助功能"};
constexpr BilingualText tagHint{"Shows whether Vantorel may send keys and mouse moves to this desktop.",
                                "显示 Vantorel 是否可以向此桌面发送按键和鼠标操作。"};
constexpr BilingualText grantedText{"GRANTED", "已授权"};
constexpr BilingualText fixText{"FIX", "修复"};
constexpr BilingualText fixHint{"Shows how to give Vantorel the permission.", "显示如何授予 Vantorel 权限。"};

}  // namespace

PermissionPanel::PermissionPanel(WindowState& windowState, QWidget* parent)
    : Panel(windowState, retroCard(AppTheme::borderColor()), parent),
      tag(addTag()),
      granted(new StatusBadge(this)),
      fix(addButton(AppTheme::accent(), [this] { state.fixPermission(); })) {
  add(granted);
  addSpace();
  follow([this] { refresh(); }, state.controllerManager.hasAccessibilityPermission);
}

void PermissionPanel::refresh() {
  const bool isGranted = state.controllerManager.hasAccessibilityPermission;
  tag->setText(local(tagText));
  tag->setToolTip(local(tagHint));
  granted->showState(local(grantedText), true);
  granted->setVisible(isGranted);
  fix->setText(local(fixText));
  fix->setToolTip(local(fixHint));
  fix->setVisible(!isGranted);
}

}  // namespace vantorel
