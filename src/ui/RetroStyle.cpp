#include "RetroStyle.h"

#include <QPalette>
#include <QStyleOption>
#include <QToolTip>

#include "AppTheme.h"
#include "Icons.h"
#include "PixelGrid.h"
#include "Typography.h"

namespace vantorel {

namespace {

constexpr int tipMargin = 5;
constexpr int tipOutline = 2;

}  // namespace

void RetroStyle::polish(QApplication* application) {
  QProxyStyle::polish(application);
  QPalette colors;
  colors.setColor(QPalette::ToolTipBase, AppTheme::cardBackground());
  colors.setColor(QPalette::ToolTipText, AppTheme::text());
  QToolTip::setPalette(colors);
  QToolTip::setFont(monospaced(captionSize));
}

int RetroStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  return metric == PM_ToolTipLabelFrameWidth ? tipMargin : QProxyStyle::pixelMetric(metric, option, widget);
}

void RetroStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
  if (element != PE_PanelTipLabel) {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    return;
  }
  fillSharp(*painter, option->rect, AppTheme::cardBackground());
  paintOutline(*painter, option->rect, tipOutline, AppTheme::borderColor());
}

QIcon RetroStyle::standardIcon(StandardPixmap picture, const QStyleOption* option,
                               const QWidget* widget) const {
  if (picture == SP_ToolBarHorizontalExtensionButton) {
    return symbolIcon(Icon::chevron, AppTheme::borderColor());
  }
  return QProxyStyle::standardIcon(picture, option, widget);
}

}  // namespace vantorel
