#include "WrappedText.h"

#include <QTextBoundaryFinder>
#include <QTextLayout>
#include <QTextOption>
#include <algorithm>
#include <utility>

namespace vantorel {

namespace {

std::unique_ptr<QTextLayout> unbrokenLine(const QString& text, const QFont& font) {
  auto layout = std::make_unique<QTextLayout>(text, font);
  QTextOption option;
  option.setWrapMode(QTextOption::NoWrap);
  layout->setTextOption(option);
  layout->beginLayout();
  layout->createLine();
  layout->endLayout();
  return layout;
}

/// Names in capitals and paths have no blanks: they may be parted after these.
bool partsAfter(QChar character) { return character == u'_' || character == u'/' || character == u':'; }

double inkWidth(const QString& text, const QFont& font) {
  return unbrokenLine(text, font)->lineAt(0).naturalTextWidth();
}

/// No glyph at the end of a line reaches further over its own advance.
constexpr double longestOverhang = 4;

/// One paragraph, measured, and its places to break.
class Paragraph {
 public:
  /// `wholeLine` is all of `content`, laid out without a break.
  Paragraph(const QString& content, const QFont& lineFont, std::unique_ptr<QTextLayout> wholeLine)
      : text(content),
        font(lineFont),
        line(std::move(wholeLine)),
        unicodeBreaks(QTextBoundaryFinder::Line, text),
        characters(QTextBoundaryFinder::Grapheme, text) {}

  QString part(qsizetype begin, qsizetype end) const {
    return text.mid(begin, withoutBlanks(begin, end) - begin);
  }

  /// Whether the part is not wider than `limit`. A last glyph may reach over its own advance, so close to the
  /// limit the part is measured by itself.
  bool fits(qsizetype begin, qsizetype end, double limit) const {
    const double advance = advanceOf(begin, end);
    return advance <= limit - longestOverhang ||
           (advance <= limit && inkWidth(part(begin, end), font) <= limit);
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
  double xAt(qsizetype position) const { return line->lineAt(0).cursorToX(static_cast<int>(position)); }

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
  qsizetype forcedEnd(qsizetype begin, double limit) {
    characters.setPosition(begin);
    qsizetype end = characters.toNextBoundary();
    for (qsizetype next = end; next > 0 && fits(begin, next, limit); next = characters.toNextBoundary()) {
      end = next;
    }
    return end > begin ? end : text.size();
  }

  QString text;
  QFont font;
  std::unique_ptr<QTextLayout> line;
  QTextBoundaryFinder unicodeBreaks;
  QTextBoundaryFinder characters;
};

}  // namespace

WrappedText::WrappedText(const QString& text, const QFont& font, double width, Qt::Alignment alignment)
    : place(alignment) {
  constexpr double roundingError = 0.01;
  for (const QString& content : text.split(u'\n')) {
    auto whole = unbrokenLine(content, font);
    if (whole->lineAt(0).naturalTextWidth() <= width) {
      lines.push_back(std::move(whole));
      continue;
    }
    Paragraph paragraph(content, font, std::move(whole));
    qsizetype begin = 0;
    do {
      const qsizetype end = paragraph.lineEnd(begin, width + roundingError);
      lines.push_back(unbrokenLine(paragraph.part(begin, end), font));
      begin = end;
    } while (begin < paragraph.size());
  }
}

WrappedText::~WrappedText() = default;
WrappedText::WrappedText(WrappedText&&) noexcept = default;
WrappedText& WrappedText::operator=(WrappedText&&) noexcept = default;

QSizeF WrappedText::size() const {
  QSizeF total(0, 0);
  for (const auto& line : lines) {
    const QTextLine content = line->lineAt(0);
    total = {std::max(total.width(), content.naturalTextWidth()), total.height() + content.height()};
  }
  return total;
}

void WrappedText::paint(QPainter& painter, const QRectF& area, const QColor& color) const {
  double y = area.top();
  if (place & Qt::AlignVCenter) y += (area.height() - size().height()) / 2;
  if (place & Qt::AlignBottom) y += area.height() - size().height();
  painter.setPen(color);
  for (const auto& line : lines) {
    const QTextLine content = line->lineAt(0);
    const double room = area.width() - content.naturalTextWidth();
    double x = area.left();
    if (place & Qt::AlignHCenter) x += room / 2;
    if (place & Qt::AlignRight) x += room;
    line->draw(&painter, {x, y});
    y += content.height();
  }
}

double unbrokenWidth(const QString& text, const QFont& font) {
  double widest = 0;
  for (const QString& line : text.split(u'\n')) {
    widest = std::max(widest, inkWidth(line, font));
  }
  return widest;
}

double widestPart(const QString& text, const QFont& font) {
  double widest = 0;
  for (const QString& content : text.split(u'\n')) {
    Paragraph paragraph(content, font, unbrokenLine(content, font));
    qsizetype begin = 0;
    while (begin < paragraph.size()) {
      const qsizetype end = paragraph.nextBreak(begin);
      if (paragraph.advanceOf(begin, end) + longestOverhang > widest) {
        widest = std::max(widest, inkWidth(paragraph.part(begin, end), font));
      }
      begin = end;
    }
  }
  return widest;
}

}  // namespace vantorel
