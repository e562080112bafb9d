#pragma once

#include <QPlainTextEdit>

namespace vantorel {

/// A text to read, select and copy, by mouse and by keyboard, in an outlined box; long lines wrap. Set it
/// with `setPlainText`.
class RetroTextView : public QPlainTextEdit {
 public:
  explicit RetroTextView(QWidget* parent = nullptr);

  static QFont textFont();          ///< for who has to know its measures before it is there
  static constexpr int margin = 8;  ///< around the text, with the outline

 protected:
  bool event(QEvent* event) override;
};

}  // namespace vantorel
