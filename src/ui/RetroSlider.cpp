#include "RetroSlider.h"

#include <QAccessibleWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "AppTheme.h"
#include "PixelGrid.h"

namespace vantorel {

namespace {

constexpr int handleWidth = 12;
constexpr int handleHeight = 16;
constexpr int grooveHeight = 6;
constexpr int outlineWidth = 2;
constexpr int frameMargin = 3;  // for the focus frame
constexpr int focusWidth = 2;
constexpr int usualWidth = 120;
constexpr int leastWidth = 48;

/// The slider as assistive technology sees it: with its decimal numbers.
class DecimalSlider : public QAccessibleWidget, public QAccessibleValueInterface {
 public:
  explicit DecimalSlider(RetroSlider* owner) : QAccessibleWidget(owner, QAccessible::Slider), slider(owner) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }

  QString text(QAccessible::Text kind) const override {
    if (kind == QAccessible::Value) return QString::number(slider->decimalValue(), 'g', 6);
    return QAccessibleWidget::text(kind);
  }

  QVariant currentValue() const override { return slider->decimalValue(); }
  void setCurrentValue(const QVariant& number) override { slider->setDecimalValue(number.toDouble()); }
  QVariant minimumValue() const override { return slider->lowest(); }
  QVariant maximumValue() const override { return slider->highest(); }
  QVariant minimumStepSize() const override { return slider->stepSize(); }

 private:
  RetroSlider* slider;
};

QAccessibleInterface* decimalSlider(const QString& /*className*/, QObject* object) {
  auto* slider = dynamic_cast<RetroSlider*>(object);
  return slider != nullptr ? new DecimalSlider(slider) : nullptr;
}

}  // namespace

RetroSlider::RetroSlider(double lowestNumber, double highestNumber, double gridStep, QWidget* parent)
    : QSlider(Qt::Horizontal, parent), from(lowestNumber), step(gridStep) {
  QAccessible::installFactory(decimalSlider);  // Qt keeps it once
  setRange(0, qRound((highestNumber - lowestNumber) / gridStep));
  setSingleStep(1);
  setPageStep(std::max(1, maximum() / 5));
  setFocusPolicy(Qt::StrongFocus);
}

void RetroSlider::setDecimalValue(double number) {
  setValue(qRound(std::clamp((number - from) / step, 0.0, 1.0 * maximum())));
}

QRectF RetroSlider::handleRect() const {
  const double way = width() - 2 * frameMargin - handleWidth;
  const double share = static_cast<double>(sliderPosition()) / std::max(1, maximum());
  return {frameMargin + way * share, (height() - handleHeight) / 2.0, handleWidth, handleHeight};
}

void RetroSlider::moveHandleTo(double x) {
  const double way = width() - 2 * frameMargin - handleWidth;
  const double share = (x - frameMargin - handleWidth / 2.0) / std::max(1.0, way);
  setSliderPosition(qRound(std::clamp(share, 0.0, 1.0) * maximum()));
}

QSize RetroSlider::sizeHint() const { return {usualWidth, handleHeight + 2 * frameMargin}; }

QSize RetroSlider::minimumSizeHint() const { return {leastWidth, handleHeight + 2 * frameMargin}; }

void RetroSlider::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QRectF handle = handleRect();
  const QColor line = isEnabled() ? AppTheme::borderColor() : AppTheme::secondaryText();
  const QRectF groove(0, (height() - grooveHeight) / 2.0, width(), grooveHeight);
  fillSharp(painter, groove, AppTheme::background());
  QRectF below = groove;
  below.setRight(handle.center().x());
  if (isEnabled()) fillSharp(painter, below, AppTheme::secondaryAccent());
  paintOutline(painter, groove, outlineWidth / 2.0, line);
  fillSharp(painter, handle, isSliderDown() ? AppTheme::secondaryAccent() : AppTheme::cardBackground());
  paintOutline(painter, handle, outlineWidth, line);
  if (hasFocus()) paintOutline(painter, rect(), focusWidth, AppTheme::secondaryAccent());
}

void RetroSlider::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) {
    event->ignore();
    return;
  }
  setSliderDown(true);
  moveHandleTo(event->position().x());
  update();
}

void RetroSlider::mouseMoveEvent(QMouseEvent* event) {
  if (isSliderDown()) moveHandleTo(event->position().x());
}

void RetroSlider::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  setSliderDown(false);
  update();
}

void RetroSlider::wheelEvent(QWheelEvent* event) {
  if (hasFocus()) {
    QSlider::wheelEvent(event);
  } else {
    event->ignore();  // the page is scrolled, and no setting changed on the way
  }
}

}  // namespace vantorel
