#pragma once

#include <QProxyStyle>

namespace vantorel {

/// The style below our own drawing: that of the toolkit, with tool tips as small plates, and without its
/// stock pictures. A menu bar asks for one although nothing here ever shows it, and Qt would load all its
/// image plugins to find it.
class RetroStyle : public QProxyStyle {
 public:
  using QProxyStyle::polish;
  void polish(QApplication* application) override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  QIcon standardIcon(StandardPixmap picture, const QStyleOption* option,
                     const QWidget* widget) const override;
};

}  // namespace vantorel
