#pragma once

#include <QColor>
#include <QFont>
#include <QLabel>
#include <QPainter>
#include <QRectF>
#include <QString>
#include <string_view>

namespace vantorel {

/// A text of the core, which is UTF-8, for a widget.
QString fromCore(std::string_view text);

/// Draws one line of text in `area`, its capitals in the middle of the height, so that it stands at the same
/// place in each language, whatever fonts its characters come from. `alignment` is horizontal.
void paintTextLine(QPainter& painter, const QRectF& area, const QString& text, const QFont& font,
                   const QColor& color, Qt::Alignment alignment = Qt::AlignLeft);

/// A label of one line with a fixed height, which does not depend on its text.
class TextLine : public QLabel {
  Q_OBJECT

 public:
  TextLine(int lineHeight, const QFont& font, const QColor& color, QWidget* parent = nullptr);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor textColor;
};

}  // namespace vantorel
