#include "DotGrid.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "AppTheme.h"
#include "Rendering.h"

namespace vantorel {
namespace {

using Points = std::vector<QPointF>;

TEST(DotGrid, BeginsInTheCornerAndEndsBeforeTheEdge) {
  EXPECT_EQ(dotGridPoints(QSizeF(40, 20)), (Points{{0, 0}, {20, 0}}));
  EXPECT_EQ(dotGridPoints(QSizeF(41, 21)), (Points{{0, 0}, {0, 20}, {20, 0}, {20, 20}, {40, 0}, {40, 20}}));
  EXPECT_EQ(dotGridPoints(QSizeF(0.5, 0.5)), (Points{{0, 0}}));
  EXPECT_EQ(dotGridPoints(QSizeF(1100, 800)).size(), 2200U);
}

TEST(DotGrid, HasNoDotsWithoutASize) {
  for (const QSizeF& size : {QSizeF(0, 20), QSizeF(20, 0), QSizeF(-5, 20), QSizeF(20, -5)}) {
    EXPECT_TRUE(dotGridPoints(size).empty());
  }
}

/// A transparent layer with the grid of `size` points on it, larger than the grid.
QImage paintedGrid(QSize size, double scale) {
  QImage image(QSizeF(size.width() * scale + 50, size.height() * scale + 50).toSize(),
               QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(scale);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  paintDotGrid(painter, size, Qt::transparent);
  painter.end();
  image.setDevicePixelRatio(1);
  return image;
}

/// The same, each dot drawn by itself.
QImage dotByDot(QSize size, double scale) {
  QImage image(QSizeF(size.width() * scale + 50, size.height() * scale + 50).toSize(),
               QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.scale(scale, scale);
  painter.setClipRect(QRect({0, 0}, size));
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor::fromRgbF(0, 0, 0, 0.05F));
  for (int x = 0; x < size.width(); x += 20) {
    for (int y = 0; y < size.height(); y += 20) painter.drawEllipse(x, y, 2, 2);
  }
  return image;
}

/// The largest difference of opacity, in steps of 1/255.
int largestDifference(const QImage& left, const QImage& right) {
  int largest = std::abs(left.width() - right.width()) + std::abs(left.height() - right.height());
  for (int y = 0; largest < 255 && y < left.height(); ++y) {
    for (int x = 0; x < left.width(); ++x) {
      largest = std::max(largest, std::abs(qAlpha(left.pixel(x, y)) - qAlpha(right.pixel(x, y))));
    }
  }
  return largest;
}

class DotGridAtScale : public testing::TestWithParam<double> {};

INSTANTIATE_TEST_SUITE_P(DotGrid, DotGridAtScale, testing::Values(1.0, 1.25, 1.5, 1.37, 2.0), scaleName);

TEST_P(DotGridAtScale, IsTheSameAsDotByDot) {
  for (const QSize size : {QSize(200, 160), QSize(41, 21), QSize(1, 1)}) {
    constexpr int roundingOfCurves = 1;
    EXPECT_LE(largestDifference(paintedGrid(size, GetParam()), dotByDot(size, GetParam())), roundingOfCurves)
        << size.width();
  }
}

TEST(DotGrid, DrawsBlackAtATwentieth) {
  const QImage image = paintedGrid({40, 20}, 4);  // a dot is eight pixels wide
  for (const int left : {0, 80}) {
    EXPECT_EQ(image.pixelColor(left + 4, 4), QColor(0, 0, 0, 13)) << "0.05 of 255";
    EXPECT_EQ(image.pixelColor(left + 4, 0).alpha() > 0, true) << "touches the upper edge";
    EXPECT_EQ(image.pixelColor(left, 0).alpha(), 0) << "is round";
    EXPECT_EQ(image.pixelColor(left + 8, 4).alpha(), 0) << "is two points wide";
    EXPECT_EQ(image.pixelColor(left + 4, 8).alpha(), 0) << "is two points high";
  }
}

TEST(DotGrid, DrawsNothingWithoutASize) {
  const QImage image = paintedGrid({0, 40}, 1);
  EXPECT_EQ(countOf(image.convertToFormat(QImage::Format_RGB32), Qt::black), image.width() * image.height());
  for (int x = 0; x < image.width(); ++x) EXPECT_EQ(image.pixelColor(x, 0).alpha(), 0);
}

TEST(DotGrid, LiesOnTheColourOfTheWindow) {
  DotGridBackground page;
  page.resize(100, 60);
  const QImage image = rendered(page, 2);
  EXPECT_EQ(image.pixelColor(20, 20), AppTheme::background());
  EXPECT_TRUE(isNearly(image.pixelColor(41, 41), blended(Qt::black, 0.05, AppTheme::background())));
  EXPECT_NE(image.pixelColor(41, 41), AppTheme::background());
}

TEST(DotGrid, IsDrawnWithoutFurtherThreads) {
  const int before = drawingThreads();
  DotGridBackground page;
  page.resize(400, 900);
  rendered(page);
  EXPECT_EQ(drawingThreads(), before);
}

}  // namespace
}  // namespace vantorel
