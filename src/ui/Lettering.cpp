#include "Lettering.h"

#include <QStringList>
#include <QTextLayout>
#include <QTextOption>
#include <algorithm>
#include <cmath>

namespace vantorel {

namespace {

/// The ascent of the Chinese family, as a part of its em; it descends less than the letters do.
constexpr double chineseAscent = 1918.0 / 2048;

bool isBetween(QChar character, char16_t first, char16_t last) {
  return character >= first && character <= last;
}

/// Letters and symbols that the monospaced font has itself.
bool takesCell(QChar character) {
  return isBetween(character, u' ', u'~') || character == u'⌘' || character == u'⇧';
}

/// Chinese characters and the punctuation between them.
bool isChinese(QChar character) {
  return isBetween(character, u'\u3001', u'\u3011') || isBetween(character, u'\u4E00', u'\u9FA5') ||
         isBetween(character, u'\uFF01', u'\uFF5E');
}

bool hasChinese(const QString& line) { return std::any_of(line.begin(), line.end(), isChinese); }

bool isPlain(const QString& line) {
  return std::all_of(line.begin(), line.end(),
                     [](QChar character) { return takesCell(character) || isChinese(character); });
}

/// A line that was laid out.
class LaidOutLine {
 public:
  LaidOutLine(const QString& text, const QFont& font) : layout(text, font) {
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    layout.setTextOption(option);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
  }

  QTextLine line() const { return layout.lineAt(0); }
  void draw(QPainter& painter, QPointF corner) const { layout.draw(&painter, corner); }

 private:
  QTextLayout layout;
};

QRawFont chineseOf(QFont font) {
  font.setFamilies(QStringList(chineseFamily));
  return QRawFont::fromFont(font);
}

/// A name from outside may have a Chinese character that is in another font.
bool lacksGlyph(const QGlyphRun& run) { return run.glyphIndexes().contains(0); }

double advanceOf(const QRawFont& font, QChar character) {
  return font.advancesForGlyphIndexes(font.glyphIndexesForString(character)).constFirst().x();
}

}  // namespace

Lettering::Lettering(const QFont& monospacedFont)
    : font(asDrawn(monospacedFont)), letters(QRawFont::fromFont(font)), cell(advanceOf(letters, u'0')) {}

QSizeF Lettering::size(const QString& line) const {
  if (!isPlain(line)) {
    const LaidOutLine laidOut(line, font);
    return {laidOut.line().naturalTextWidth(), laidOut.line().height()};
  }
  const double width = line.isEmpty() ? 0 : pens(line).back() + overhang(line.back());
  return {width, std::ceil(ascent(line) + letters.descent())};
}

std::vector<double> Lettering::pens(const QString& line) const {
  std::vector<double> result{0};
  result.reserve(static_cast<std::size_t>(line.size()) + 1);
  if (!isPlain(line)) {
    const LaidOutLine laidOut(line, font);
    for (int index = 1; index <= line.size(); ++index) result.push_back(laidOut.line().cursorToX(index));
    return result;
  }
  for (const QChar character : line)
    result.push_back(result.back() + (isChinese(character) ? font.pixelSize() : cell));
  return result;
}

void Lettering::draw(QPainter& painter, QPointF corner, const QString& line) const {
  const QList<QGlyphRun> parts = isPlain(line) ? runs(line) : QList<QGlyphRun>();
  if (parts.isEmpty() || std::any_of(parts.begin(), parts.end(), lacksGlyph)) {
    LaidOutLine(line, font).draw(painter, corner);
    return;
  }
  for (const QGlyphRun& part : parts) painter.drawGlyphRun(corner + QPointF(0, ascent(line)), part);
}

QList<QGlyphRun> Lettering::runs(const QString& line) const {
  const std::vector<double> places = pens(line);
  QList<QGlyphRun> result;
  for (qsizetype begin = 0, end = 0; begin < line.size(); begin = end) {
    const bool chinese = isChinese(line[begin]);
    QList<QPointF> positions;
    for (; end < line.size() && isChinese(line[end]) == chinese; ++end)
      positions.emplace_back(places[static_cast<std::size_t>(end)], 0);
    QGlyphRun run;
    run.setRawFont(chinese ? chineseOf(font) : letters);
    run.setGlyphIndexes(run.rawFont().glyphIndexesForString(line.mid(begin, end - begin)));
    run.setPositions(positions);
    result += run;
  }
  return result;
}

double Lettering::ascent(const QString& line) const {
  return hasChinese(line) ? std::max(letters.ascent(), chineseAscent * font.pixelSize()) : letters.ascent();
}

double Lettering::overhang(QChar last) const {
  if (!takesCell(last)) return 0;
  const quint32 glyph = letters.glyphIndexesForString(last).constFirst();
  return std::max(0.0, letters.boundingRect(glyph).right() - cell);
}

}  // namespace vantorel
