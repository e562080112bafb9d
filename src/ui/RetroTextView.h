#pragma once

#include <QPlainTextEdit>

namespace vantorel {

/// A text to read, select and copy, by mouse and by keyboard, in an outlined box; long lines wrap. Set it
/// with `setPlainText`.
class RetroTextView : public QPlainTextEdit {
 public:
  explicit RetroTextView(QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
};

}  // namespace vantorel
