#include "CloseButton.h"

#include <QFontMetricsF>
#include <QKeyEvent>
#include <QPainter>
#include <cmath>

#include "AppTheme.h"
#include "BilingualText.h"
#include "PixelGrid.h"
#include "ReturnKey.h"
#include "TextLine.h"
#include "Typography.h"

namespace vantorel {
namespace {

constexpr int focusMargin = 8;  // between the button's edge and the focus frame
constexpr int focusWidth = 2;

constexpr BilingualText closeText{"Close", "关闭"};

}  // namespace

CloseButton::CloseButton(QWidget* parent) : QAbstractButton(parent) {
  setText(QStringLiteral("[X]"));
  setFont(systemFont(14));
  setFocusPolicy(Qt::StrongFocus);
}

void CloseButton::showName(AppLanguage language) {
  setAccessibleName(closeText.in(language));
  setToolTip(closeText.in(language));
}

QSize CloseButton::sizeHint() const {
  const QFontMetricsF metrics(font());
  return {static_cast<int>(std::ceil(metrics.horizontalAdvance(text()))) + 2 * padding,
          static_cast<int>(std::ceil(metrics.height())) + 2 * padding};
}

void CloseButton::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  paintTextLine(painter, rect(), text(), font(), isDown() ? QColor(Qt::white) : AppTheme::accent(),
                Qt::AlignHCenter);
  if (hasFocus()) {
    const QRect frame = rect().adjusted(focusMargin, focusMargin, -focusMargin, -focusMargin);
    paintOutline(painter, frame, focusWidth, AppTheme::secondaryAccent());
  }
}

void CloseButton::keyPressEvent(QKeyEvent* event) {
  if (!clickByReturnKey(*this, *event)) QAbstractButton::keyPressEvent(event);
}

}  // namespace vantorel
