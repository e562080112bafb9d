#pragma once

#include <QMenuBar>

namespace vantorel {

/// A menu bar in the style of the window: white, with a line below it.
class RetroMenuBar : public QMenuBar {
 public:
  explicit RetroMenuBar(QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace vantorel
