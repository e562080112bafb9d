#include "Typography.h"

#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QStringList>

namespace vantorel {
namespace {

TEST(Typography, IsMonospacedInEverySizeAndWeight) {
  for (const int points : {9, 10, 13, 14}) {
    for (const QFont::Weight weight : {QFont::Normal, QFont::Bold, QFont::Black}) {
      const QFont font = monospaced(points, weight);
      const QFontMetricsF metrics(font);
      EXPECT_DOUBLE_EQ(metrics.horizontalAdvance("iiii"), metrics.horizontalAdvance("MMMM"));
      EXPECT_EQ(font.pixelSize(), points);
      EXPECT_EQ(font.weight(), weight);
    }
  }
}

TEST(Typography, HasBodyTextOfThirteenPoints) { EXPECT_EQ(monospaced().pixelSize(), 13); }

TEST(Typography, DrawsNothingHeavierThanBold) {
  EXPECT_EQ(asDrawn(systemFont(13, QFont::Black)), systemFont(13, QFont::Bold));
  EXPECT_EQ(asDrawn(monospaced(9, QFont::Bold)), monospaced(9, QFont::Bold));
  EXPECT_EQ(asDrawn(monospaced(9)), monospaced(9));
}

TEST(Typography, IsProportionalInTheList) {
  const QFontMetricsF metrics(systemFont(13, QFont::Bold));
  EXPECT_LT(metrics.horizontalAdvance("iiii"), metrics.horizontalAdvance("MMMM"));
}

TEST(Typography, NamesTheSameFamiliesForChineseAndEmojiInBoth) {
  for (const char* family : {"WenQuanYi Micro Hei", "Noto Color Emoji"}) {
    EXPECT_TRUE(monospaced().families().contains(QString(family)));
    EXPECT_TRUE(systemFont().families().contains(QString(family)));
  }
}

}  // namespace
}  // namespace vantorel
