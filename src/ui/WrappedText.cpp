#include "WrappedText.h"

#include <QTextBoundaryFinder>
#include <algorithm>

namespace vantorel {

namespace {

/// Names in capitals and paths have no blanks: they may be parted after these.
bool partsAfter(QChar character) { return character == u'_' || character == u'/' || character == u':'; }

/// No glyph at the end of a line reaches further over its own advance.
constexpr double longestOverhang = 4;

/// One paragraph, measured, and its places to break.
class Paragraph {
 public:
  /// `usedLettering` outlives it.
  Paragraph(const QString& content, const Lettering& usedLettering)
      : text(content),
        lettering(usedLettering),
        pens(lettering.pens(text)),
        unicodeBreaks(QTextBoundaryFinder::Line, text) {}

  QString part(qsizetype begin, qsizetype end) const {
    return text.mid(begin, withoutBlanks(begin, end) - begin);
  }

  /// Whether the part is not wider than `limit`. A last glyph may reach over its own advance, so close to the
  /// limit the part is measured by itself.
  bool fits(qsizetype begin, qsizetype end, double limit) const {
    const double advance = advanceOf(begin, end);
    return advance <= limit - longestOverhang ||
           (advance <= limit && lettering.size(part(begin, end)).width() <= limit);
  }

  /// How far the part moves the pen.
  double advanceOf(qsizetype begin, qsizetype end) const {
    return xAt(withoutBlanks(begin, end)) - xAt(begin);
  }

  /// The next place after `position` at which the text may be parted without need.
  qsizetype nextBreak(qsizetype position) {
    for (qsizetype next = position + 1; next < text.size(); ++next) {
      const bool named = partsAfter(text[next - 1]) && !text[next].isSpace() && !text[next].isDigit();
      if (named || (text[next] == u'(' && !text[next - 1].isSpace()) || isUnicodeBreak(next)) return next;
    }
    return text.size();
  }

  /// The end of the line that begins at `begin`.
  qsizetype lineEnd(qsizetype begin, double limit) {
    qsizetype end = begin;
    while (end < text.size()) {
      const qsizetype next = nextBreak(end);
      if (!fits(begin, next, limit)) break;
      end = next;
    }
    return end > begin ? end : forcedEnd(begin, limit);
  }

  qsizetype size() const { return text.size(); }

 private:
  double xAt(qsizetype position) const { return pens[static_cast<std::size_t>(position)]; }

  bool isUnicodeBreak(qsizetype position) {
    unicodeBreaks.setPosition(position);
    return unicodeBreaks.isAtBoundary() && !isLastCharacter(position) && !isInFullWidthParentheses(position);
  }

  /// A single character would look lost on the last line.
  bool isLastCharacter(qsizetype position) const { return position == text.size() - 1; }

  /// Chinese could be parted anywhere; a remark in parentheses such as "（蓝牙）" rather stays whole.
  bool isInFullWidthParentheses(qsizetype position) const {
    return text.lastIndexOf(u'（', position - 1) > text.lastIndexOf(u'）', position - 1);
  }

  /// The blanks at a line's end take no room.
  qsizetype withoutBlanks(qsizetype begin, qsizetype end) const {
    while (end > begin && text[end - 1].isSpace()) --end;
    return end;
  }

  /// Inside a word: as many whole characters as fit, but at least one.
  qsizetype forcedEnd(qsizetype begin, double limit) const {
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, text);
    characters.setPosition(begin);
    qsizetype end = characters.toNextBoundary();
    for (qsizetype next = end; next > 0 && fits(begin, next, limit); next = characters.toNextBoundary()) {
      end = next;
    }
    return end > begin ? end : text.size();
  }

  QString text;
  const Lettering& lettering;
  std::vector<double> pens;
  QTextBoundaryFinder unicodeBreaks;
};

}  // namespace

WrappedText::WrappedText(const QString& text, const Lettering& lineLettering, double width,
                         Qt::Alignment alignment)
    : lettering(lineLettering), place(alignment) {
  constexpr double roundingError = 0.01;
  for (const QString& content : text.split(u'\n')) {
    if (const QSizeF whole = lettering.size(content); whole.width() <= width) {
      lines.push_back({content, whole});
      continue;
    }
    Paragraph paragraph(content, lettering);
    qsizetype begin = 0;
    do {
      const qsizetype end = paragraph.lineEnd(begin, width + roundingError);
      const QString part = paragraph.part(begin, end);
      lines.push_back({part, lettering.size(part)});
      begin = end;
    } while (begin < paragraph.size());
  }
}

QSizeF WrappedText::size() const {
  QSizeF total(0, 0);
  for (const Line& line : lines)
    total = {std::max(total.width(), line.size.width()), total.height() + line.size.height()};
  return total;
}

void WrappedText::paint(QPainter& painter, const QRectF& area, const QColor& color) const {
  double y = area.top();
  if (place & Qt::AlignVCenter) y += (area.height() - size().height()) / 2;
  if (place & Qt::AlignBottom) y += area.height() - size().height();
  painter.setPen(color);
  for (const Line& line : lines) {
    const double room = area.width() - line.size.width();
    double x = area.left();
    if (place & Qt::AlignHCenter) x += room / 2;
    if (place & Qt::AlignRight) x += room;
    lettering.draw(painter, {x, y}, line.text);
    y += line.size.height();
  }
}

double widestPart(const QString& text, const Lettering& lettering) {
  double widest = 0;
  for (const QString& content : text.split(u'\n')) {
    Paragraph paragraph(content, lettering);
    qsizetype begin = 0;
    while (begin < paragraph.size()) {
      const qsizetype end = paragraph.nextBreak(begin);
      if (paragraph.advanceOf(begin, end) + longestOverhang > widest)
        widest = std::max(widest, lettering.size(paragraph.part(begin, end)).width());
      begin = end;
    }
  }
  return widest;
}

}  // namespace vantorel
