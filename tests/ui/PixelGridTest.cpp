#include "PixelGrid.h"

#include <gtest/gtest.h>

#include "Rendering.h"

namespace vantorel {
namespace {

class PixelGridAtScale : public testing::TestWithParam<double> {};

INSTANTIATE_TEST_SUITE_P(PixelGrid, PixelGridAtScale, allScales(), scaleName);

TEST_P(PixelGridAtScale, DrawsEveryLineOfAnOutlineEquallyWideWhereverItStands) {
  for (double offset = 0; offset < 4; offset += 0.3) {
    QImage image(200, 200, QImage::Format_RGB32);
    image.fill(Qt::white);
    image.setDevicePixelRatio(GetParam());
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(offset, offset);
    paintOutline(painter, QRectF(5, 5, 40, 40), 2, Qt::black);
    painter.end();
    image.setDevicePixelRatio(1);
    const int line = static_cast<int>(2 * GetParam() + 0.5);
    const int middle = static_cast<int>((25 + offset) * GetParam());
    const int left = runLength(image, {0, middle}, {1, 0});
    EXPECT_EQ(runLength(image, {left, middle}, {1, 0}), line) << offset;
    const int right = left + line + runLength(image, {left + line, middle}, {1, 0});
    EXPECT_EQ(runLength(image, {right, middle}, {1, 0}), line) << offset;
    EXPECT_EQ(countOf(image, Qt::white) + countOf(image, Qt::black), 200 * 200) << "no soft edge";
  }
}

TEST(PixelGrid, NeverLosesALine) {
  QImage image(20, 20, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  paintOutline(painter, QRectF(2, 2, 10, 10), 0.1, Qt::black);
  EXPECT_EQ(countOf(image, Qt::black), 36);
}

TEST(PixelGrid, FillsARectangleSmallerThanItsOutline) {
  QImage image(20, 20, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  paintOutline(painter, QRectF(2, 2, 5, 5), 3, Qt::black);
  EXPECT_EQ(countOf(image, Qt::black), 25);
}

}  // namespace
}  // namespace vantorel
