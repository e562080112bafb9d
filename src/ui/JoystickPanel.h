#pragma once

#include "JoystickSetting.h"
#include "Panel.h"

namespace vantorel {

/// The switch of the thumbstick mouse and, while it is on, what the sticks do and its three settings.
class JoystickPanel final : public Panel {
 public:
  explicit JoystickPanel(WindowState& windowState, QWidget* parent = nullptr);

 private:
  QWidget* makeSection();
  QWidget* makeInformationBox();
  WrappingLabel* addInformation(QVBoxLayout& rows, const QColor& color);
  void flip(bool isOn);
  void refresh();

  RetroCheckBox* joystickControl;
  WrappingLabel* leftStick = nullptr;
  WrappingLabel* rightStick = nullptr;
  JoystickSetting* mouse = nullptr;
  JoystickSetting* scroll = nullptr;
  JoystickSetting* deadzone = nullptr;
  QWidget* section;
};

}  // namespace vantorel
