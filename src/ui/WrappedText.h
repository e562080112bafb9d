#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <vector>

#include "Lettering.h"

namespace vantorel {

/// A text broken into lines of a given width: between words, after "_", "/", "(" and the like, between
/// Chinese characters, and as a last resort inside a word, so that it is never clipped nor elided.
class WrappedText {
 public:
  /// `text` in lines at most `width` points wide; its own line breaks are kept.
  WrappedText(const QString& text, const Lettering& lineLettering, double width,
              Qt::Alignment alignment = Qt::AlignLeft);

  int lineCount() const { return static_cast<int>(lines.size()); }
  /// The width of the widest line and the height of all.
  QSizeF size() const;
  /// The lines in `area`, which should be as wide as they were broken for; the alignment's vertical half
  /// places them in its height.
  void paint(QPainter& painter, const QRectF& area, const QColor& color) const;

 private:
  struct Line {
    QString text;
    QSizeF size;
  };

  Lettering lettering;
  std::vector<Line> lines;
  Qt::Alignment place;
};

/// The width of the widest part of `text` that only the last resort would break.
double widestPart(const QString& text, const Lettering& lettering);

}  // namespace vantorel
