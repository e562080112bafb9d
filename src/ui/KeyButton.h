#pragma once

#include <QAbstractButton>

#include "AppLanguage.h"
#include "KeyboardKey.h"

namespace vantorel {

/// One key of the key picker. It is checked if it is the present key of the edited button; pressing it does
/// not change that.
class KeyButton : public QAbstractButton {
  Q_OBJECT

 public:
  static constexpr int keyHeight = 32;

  KeyButton(KeyboardKey shownKey, bool isCurrent, QWidget* parent = nullptr);

  KeyboardKey key() const { return keyboardKey; }
  void showName(AppLanguage language);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void nextCheckState() override {}

 private:
  KeyboardKey keyboardKey;
};

}  // namespace vantorel
