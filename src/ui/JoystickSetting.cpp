#include "JoystickSetting.h"

#include <QSignalBlocker>
#include <QVBoxLayout>

#include "AppTheme.h"
#include "Typography.h"

namespace vantorel {

namespace {

constexpr int labelSize = 10;
constexpr int labelSpacing = 2;

}  // namespace

JoystickSetting::JoystickSetting(const SliderRange& range, std::function<void(double value)> onMove,
                                 QWidget* parent)
    : QWidget(parent),
      label(new WrappingLabel(monospaced(labelSize), AppTheme::text(), this)),
      slider(new RetroSlider(range.lowerHundredths / 100.0, range.upperHundredths / 100.0,
                             range.stepHundredths / 100.0, this)) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->setSpacing(labelSpacing);
  layout->addWidget(label);
  layout->addWidget(slider);
  connect(slider, &QSlider::valueChanged, this,
          [this, move = std::move(onMove)] { move(slider->decimalValue()); });
}

void JoystickSetting::showValue(const QString& name, const QString& hint, float value) {
  label->setText(name + QString::asprintf(": %.1f", static_cast<double>(value)));
  slider->setAccessibleName(name);
  slider->setToolTip(hint);
  const QSignalBlocker published(slider);
  slider->setDecimalValue(static_cast<double>(value));
}

}  // namespace vantorel
