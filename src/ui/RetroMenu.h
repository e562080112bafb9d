#pragma once

#include <QMenu>

namespace vantorel {

/// A menu in the style of the window: white, outlined, square, the current entry blue.
class RetroMenu : public QMenu {
 public:
  explicit RetroMenu(QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace vantorel
