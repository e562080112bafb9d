#pragma once

#include <QVBoxLayout>
#include <QWidget>

#include "AppTheme.h"

namespace vantorel {

/// The measures of a card, in points. As it stands: a card of the window.
struct CardStyle {
  int padding = 16;      ///< between the card's edge and its content; the outline lies within
  int outlineWidth = 3;  ///< drawn inside the edge
  QColor shadowColor = AppTheme::borderColor();
  double shadowOpacity = 0.12;
  int shadowOffset = 4;  ///< to the right and down
  QColor fill = AppTheme::cardBackground();
};

/// The window's card with a shadow in `shadowColor`.
CardStyle retroCard(const QColor& shadowColor);

/// A white rectangle with a black outline and a hard shadow, and content within. The widget is larger than
/// the card by the shadow, which lies at its right and lower edge on whatever is behind the widget.
class CardFrame : public QWidget {
 public:
  explicit CardFrame(const CardStyle& style = {}, QWidget* parent = nullptr);

  /// Where the content goes, from top to bottom.
  QVBoxLayout* contentLayout() const { return content; }

  /// The card without its shadow, in the widget's coordinates.
  QRect cardRect() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  CardStyle look;
  QVBoxLayout* content;
};

}  // namespace vantorel
