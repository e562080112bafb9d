#pragma once

#include <QProxyStyle>

namespace vantorel {

/// The style below our own drawing: that of the toolkit, without its stock pictures. A menu bar asks for one
/// although nothing here ever shows it, and Qt would load all its image plugins to find it.
class RetroStyle : public QProxyStyle {
 public:
  QIcon standardIcon(StandardPixmap picture, const QStyleOption* option,
                     const QWidget* widget) const override;
};

}  // namespace vantorel
