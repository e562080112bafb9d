#include "MappingSwitchPanel.h"

namespace vantorel {

namespace {

constexpr const char* switchText = "ACTIVE_MAPPING";
constexpr BilingualText switchName{"ACTIVE_MAPPING", "启用映射"};
constexpr BilingualText switchHint{"Lets the controller's buttons press keys while it is on.",
                                   "打开时，手柄按钮会按下对应的键盘按键。"};
constexpr const char* buttonText = "REFRESH_SYSTEM";
constexpr BilingualText buttonName{"REFRESH_SYSTEM", "刷新系统"};
constexpr BilingualText buttonHint{"Looks again whether Vantorel has the permission.",
                                   "重新检查 Vantorel 是否已获得权限。"};

}  // namespace

MappingSwitchPanel::MappingSwitchPanel(WindowState& windowState, QWidget* parent)
    : Panel(windowState, retroCard(AppTheme::borderColor()), parent),
      activeMapping(addSwitch([this](bool isOn) { flip(isOn); })) {
  activeMapping->setText(QString::fromUtf8(switchText));
  addSpace();
  refreshSystem = addButton(AppTheme::secondaryAccent(), [this] { state.refreshSystem(); });
  refreshSystem->setText(QString::fromUtf8(buttonText));
  follow([this] { refresh(); }, state.isEnabled);
}

void MappingSwitchPanel::flip(bool isOn) {
  if (isOn != state.isEnabled) state.setEnabled(isOn);
}

void MappingSwitchPanel::refresh() {
  activeMapping->setChecked(state.isEnabled);
  activeMapping->setAccessibleName(local(switchName));
  activeMapping->setToolTip(local(switchHint));
  refreshSystem->setAccessibleName(local(buttonName));
  refreshSystem->setToolTip(local(buttonHint));
}

}  // namespace vantorel
