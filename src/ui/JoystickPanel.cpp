#include "JoystickPanel.h"

#include <QHBoxLayout>

#include "Typography.h"

namespace vantorel {

namespace {

constexpr int informationSize = 9;
constexpr int glyphSize = 10;
constexpr int rowSpacing = 4;
constexpr int sectionSpacing = 8;
constexpr BilingualText switchText{"JOYSTICK_CONTROL", "摇杆控制"};
constexpr BilingualText switchHint{"Lets the thumbsticks move the cursor, click and scroll.",
                                   "用摇杆移动光标、点击和滚动页面。"};
constexpr BilingualText leftStickText{"LEFT_STICK: Move cursor + Click (L3)",
                                      "左摇杆: 移动光标 + 按下点击 (L3)"};
constexpr BilingualText rightStickText{"RIGHT_STICK: Scroll page", "右摇杆: 滚动页面"};
constexpr BilingualText mouseText{"MOUSE", "鼠标指针"};
constexpr BilingualText mouseHint{"Sets how fast the left stick moves the cursor.",
                                  "设置左摇杆移动光标的速度。"};
constexpr BilingualText scrollText{"SCROLL", "滚动速度"};
constexpr BilingualText scrollHint{"Sets how fast the right stick scrolls.", "设置右摇杆滚动的速度。"};
constexpr BilingualText deadzoneText{"DEADZONE", "死区"};
constexpr BilingualText deadzoneHint{"Sets how far a stick has to be moved before it has an effect.",
                                     "设置摇杆移动多远后才生效。"};

CardStyle informationBox() {
  CardStyle style;
  style.padding = 8;
  style.outlineWidth = 1;
  style.shadowOpacity = 0;
  style.shadowOffset = 0;
  style.fill = AppTheme::faded(AppTheme::background(), 0.5);
  return style;
}

}  // namespace

JoystickPanel::JoystickPanel(WindowState& windowState, QWidget* parent)
    : Panel(windowState, retroCard(AppTheme::borderColor()), parent),
      joystickControl(addSwitch([this](bool isOn) { flip(isOn); })),
      section(makeSection()) {
  add(section);
  addSpace();
  const JoystickMouseController& joystick = state.controllerManager.joystickMouseController;
  follow([this] { refresh(); }, joystick.isEnabled, joystick.mouseSensitivity, joystick.sensitivity,
         joystick.deadzone);
}

QWidget* JoystickPanel::makeSection() {
  auto* column = new QWidget(this);
  auto* layout = new QVBoxLayout(column);
  layout->setContentsMargins({});
  layout->setSpacing(sectionSpacing);
  layout->addWidget(makeInformationBox());
  mouse =
      new JoystickSetting(mouseSensitivityRange, [this](double value) { state.setMouseSensitivity(value); });
  scroll = new JoystickSetting(scrollSensitivityRange,
                               [this](double value) { state.setScrollSensitivity(value); });
  deadzone = new JoystickSetting(deadzoneRange, [this](double value) { state.setDeadzone(value); });
  for (JoystickSetting* const setting : {mouse, scroll, deadzone}) layout->addWidget(setting);
  return column;
}

QWidget* JoystickPanel::makeInformationBox() {
  auto* box = new CardFrame(informationBox(), this);
  QVBoxLayout* const rows = box->contentLayout();
  rows->setSpacing(rowSpacing);
  leftStick = addInformation(*rows, AppTheme::secondaryAccent());
  rightStick = addInformation(*rows, AppTheme::success());
  return box;
}

WrappingLabel* JoystickPanel::addInformation(QVBoxLayout& rows, const QColor& color) {
  auto* glyph = new WrappingLabel(monospaced(glyphSize), AppTheme::text(), this);
  glyph->setText(QString::fromUtf8("🕹️"));
  glyph->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
  glyph->setAlignment(Qt::AlignTop);
  auto* text = new WrappingLabel(monospaced(informationSize), color, this);
  auto* row = new QHBoxLayout;
  row->setSpacing(rowSpacing);
  row->addWidget(glyph);
  row->addWidget(text, 1);
  rows.addLayout(row);
  return text;
}

void JoystickPanel::flip(bool isOn) {
  if (isOn != state.controllerManager.joystickMouseController.isEnabled) state.setJoystickEnabled(isOn);
}

void JoystickPanel::refresh() {
  const JoystickMouseController& joystick = state.controllerManager.joystickMouseController;
  joystickControl->setText(local(switchText));
  joystickControl->setToolTip(local(switchHint));
  joystickControl->setChecked(joystick.isEnabled);
  leftStick->setText(local(leftStickText));
  rightStick->setText(local(rightStickText));
  mouse->showValue(local(mouseText), local(mouseHint), joystick.mouseSensitivity);
  scroll->showValue(local(scrollText), local(scrollHint), joystick.sensitivity);
  deadzone->showValue(local(deadzoneText), local(deadzoneHint), joystick.deadzone);
  section->setVisible(joystick.isEnabled);
}

}  // namespace vantorel
