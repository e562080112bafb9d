#pragma once

#include <QFont>
#include <QGlyphRun>
#include <QList>
#include <QPainter>
#include <QPointF>
#include <QRawFont>
#include <QSizeF>
#include <QString>
#include <vector>

#include "Typography.h"

namespace vantorel {

/// Measures and draws lines of text in the monospaced font. A letter takes one cell and a Chinese character
/// its em square, so that most lines need not be laid out for it, and the Chinese font not be read before it
/// is drawn with; lines with any other character are laid out.
class Lettering {
 public:
  explicit Lettering(const QFont& monospacedFont);

  /// Whether `other` is drawn in it as well.
  bool isIn(const QFont& other) const { return asDrawn(other) == font; }

  /// How high a line is that has no Chinese.
  double lineHeight() const { return size({}).height(); }

  /// How wide the line is, with what its last glyph reaches over its own advance, and how high.
  QSizeF size(const QString& line) const;

  /// Where the pen is before each UTF-16 unit of the line, and behind the last one.
  std::vector<double> pens(const QString& line) const;

  /// Draws the line with the pen of `painter`, its upper left corner at `corner`.
  void draw(QPainter& painter, QPointF corner, const QString& line) const;

 private:
  QList<QGlyphRun> runs(const QString& line) const;
  double ascent(const QString& line) const;
  double overhang(QChar last) const;

  QFont font;
  QRawFont letters;
  double cell;
};

}  // namespace vantorel
