#include "TextLine.h"

#include <gtest/gtest.h>

#include <utility>

#include "Rendering.h"
#include "Typography.h"

namespace vantorel {
namespace {

/// The first and the last row of `image` that has ink on it.
std::pair<int, int> inkedRows(const QImage& image) {
  std::pair<int, int> rows(-1, -1);
  for (int y = 0; y < image.height(); ++y) {
    if (runLength(image, {0, y}, {1, 0}) == image.width()) continue;
    if (rows.first < 0) rows.first = y;
    rows.second = y;
  }
  return rows;
}

QImage pictureOf(const QString& text) {
  TextLine line(16, systemFont(12, QFont::Black), Qt::black);
  line.setText(text);
  line.resize(200, 16);
  return rendered(line, 4);
}

TEST(TextLine, HasOneHeightInBothLanguages) {
  TextLine line(16, systemFont(12), Qt::black);
  line.setText(QStringLiteral("ACTION"));
  EXPECT_EQ(line.sizeHint().height(), 16);
  line.setText(QStringLiteral("动作"));
  EXPECT_EQ(line.sizeHint().height(), 16);
  line.resize(100, 100);
  EXPECT_EQ(line.height(), 16);
}

TEST(TextLine, PutsCapitalsInTheMiddleOfItsHeight) {
  const auto [first, last] = inkedRows(pictureOf(QStringLiteral("HIH")));
  EXPECT_NEAR(first, 63 - last, 4) << "within a point";
}

TEST(TextLine, ClipsNoCharacterOfEitherLanguage) {
  for (const char* text : {"> NUMERIC_()|gjpqy", "> 功能键 动作 方向键", "Å"}) {
    const auto [first, last] = inkedRows(pictureOf(QString::fromUtf8(text)));
    EXPECT_GT(first, 0) << text;
    EXPECT_LT(last, 63) << text;
  }
}

TEST(TextLine, IsAsWideAsItsText) {
  TextLine line(16, systemFont(12), Qt::black);
  line.setText(QStringLiteral("ACTION"));
  line.resize(line.sizeHint());
  const int width = line.width();
  const QImage image = rendered(line);
  line.resize(width + 50, 16);
  EXPECT_EQ(countOf(image, QColor(Qt::black)), countOf(rendered(line), QColor(Qt::black)))
      << "nothing is cut off at the right";
}

}  // namespace
}  // namespace vantorel
