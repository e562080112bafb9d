#include "RetroStyle.h"

#include "AppTheme.h"
#include "Icons.h"

namespace vantorel {

QIcon RetroStyle::standardIcon(StandardPixmap picture, const QStyleOption* option,
                               const QWidget* widget) const {
  if (picture == SP_ToolBarHorizontalExtensionButton) {
    return symbolIcon(Icon::chevron, AppTheme::borderColor());
  }
  return QProxyStyle::standardIcon(picture, option, widget);
}

}  // namespace vantorel
