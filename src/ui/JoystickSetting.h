#pragma once

#include <QString>
#include <QWidget>
#include <functional>

#include "RetroSlider.h"
#include "SliderRange.h"
#include "WrappingLabel.h"

namespace vantorel {

/// A setting of the thumbstick mouse: its name and value above a slider.
class JoystickSetting : public QWidget {
 public:
  /// `onMove` is called with the new value when the user moves the slider.
  JoystickSetting(const SliderRange& range, std::function<void(double value)> onMove,
                  QWidget* parent = nullptr);

  /// Shows `value` under `name`.
  void showValue(const QString& name, const QString& hint, float value);

 private:
  WrappingLabel* label;
  RetroSlider* slider;
};

}  // namespace vantorel
