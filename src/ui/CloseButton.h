#pragma once

#include <QAbstractButton>

#include "AppLanguage.h"

namespace vantorel {

/// The "[X]" of a title bar. The button is larger than its text by `padding` on every side.
class CloseButton : public QAbstractButton {
  Q_OBJECT

 public:
  static constexpr int padding = 16;

  explicit CloseButton(QWidget* parent = nullptr);

  void showName(AppLanguage language);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace vantorel
