#pragma once

#include "WrappingLabel.h"

namespace vantorel {

/// A state in a few words on a coloured, outlined plate as wide as the panel, such as "[ ONLINE ]".
class StatusBadge : public WrappingLabel {
 public:
  explicit StatusBadge(QWidget* parent = nullptr);

  /// Shows `text` on a plate that says that all is well, or that something is missing.
  void showState(const QString& text, bool isGood);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  bool isGoodNews = false;
};

}  // namespace vantorel
