#pragma once

#include <QMenu>
#include <QPainter>

namespace vantorel {

/// A menu in the style of the window: white, outlined, square, the current entry blue.
class RetroMenu : public QMenu {
 public:
  explicit RetroMenu(QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void paintEntry(QPainter& painter, QAction* entry) const;
};

}  // namespace vantorel
