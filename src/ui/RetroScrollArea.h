#pragma once

#include <QScrollArea>
#include <QScrollBar>

namespace vantorel {

/// A scroll bar in the style of the window.
class RetroScrollBar : public QScrollBar {
 public:
  explicit RetroScrollBar(Qt::Orientation orientation, QWidget* parent = nullptr);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

/// A vertically scrolling area without frame or fill of its own, so that what is behind it shows through.
/// Its content is as wide as the area.
class RetroScrollArea : public QScrollArea {
 public:
  explicit RetroScrollArea(QWidget* parent = nullptr);

  /// Shows `content`, which is owned from then on; like `setWidget`, but leaves it without a fill.
  void setContent(QWidget* content);
};

}  // namespace vantorel
