#pragma once

#include "WrappingLabel.h"

namespace vantorel {

/// The title of a panel, such as "SYS_CONNECTION": small white capitals on a black plate as wide as its text.
class SectionTag : public WrappingLabel {
 public:
  explicit SectionTag(const QString& text = {}, QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace vantorel
