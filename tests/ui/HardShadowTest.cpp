#include "HardShadow.h"

#include <gtest/gtest.h>

#include "PixelGrid.h"
#include "Rendering.h"

namespace vantorel {
namespace {

const QColor color = Qt::blue;
constexpr double opacity = 0.25;
constexpr int offset = 5;

QColor faint() {
  QColor result = color;
  result.setAlphaF(float{opacity});
  return result;
}

QImage paper(double scale) {
  QImage image(static_cast<int>(100 * scale), static_cast<int>(450 * scale), QImage::Format_RGB32);
  image.setDevicePixelRatio(scale);
  image.fill(Qt::white);
  return image;
}

class HardShadowAtScale : public testing::TestWithParam<double> {};

INSTANTIATE_TEST_SUITE_P(HardShadow, HardShadowAtScale, testing::Values(1.0, 1.15, 1.25, 1.5, 1.9, 2.0, 2.5),
                         scaleName);

TEST_P(HardShadowAtScale, IsTheMovedShapeWithoutWhatTheShapeCovers) {
  for (int top = 0; top < 20; ++top) {
    const QRectF shape(top, top, 30, 400);
    QImage expected = paper(GetParam());
    {
      QPainter painter(&expected);
      fillSharp(painter, shape.translated(offset, offset), faint());
      fillSharp(painter, shape, Qt::white);
    }
    QImage actual = paper(GetParam());
    {
      QPainter painter(&actual);
      paintHardShadow(painter, shape, {color, opacity, offset});
    }
    EXPECT_EQ(actual, expected) << top;
  }
}

TEST_P(HardShadowAtScale, IsDrawnWithoutFurtherThreads) {
  const int before = drawingThreads();
  const QRectF shape(10, 10, 30, 400);
  QImage image = paper(GetParam());
  QPainter painter(&image);
  paintHardShadow(painter, shape, {color, opacity, offset});
  EXPECT_EQ(drawingThreads(), before);
  painter.fillRect(shape, faint());
  EXPECT_GT(drawingThreads(), 0) << "Qt has them, and this test could tell";
}

}  // namespace
}  // namespace vantorel
