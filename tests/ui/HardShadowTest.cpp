#include "HardShadow.h"

#include <gtest/gtest.h>

#include "PixelGrid.h"
#include "Rendering.h"

namespace vantorel {
namespace {

constexpr QRectF high(10, 10, 30, 400);
const QColor color = Qt::blue;
constexpr double opacity = 0.25;
constexpr int offset = 5;

QImage paper(double scale) {
  QImage image(static_cast<int>(100 * scale), static_cast<int>(450 * scale), QImage::Format_RGB32);
  image.setDevicePixelRatio(scale);
  image.fill(Qt::white);
  return image;
}

class HardShadowAtScale : public testing::TestWithParam<double> {};

INSTANTIATE_TEST_SUITE_P(HardShadow, HardShadowAtScale, allScales(), scaleName);

TEST_P(HardShadowAtScale, IsTheMovedShapeWithoutWhatTheShapeCovers) {
  QImage expected = paper(GetParam());
  {
    QPainter painter(&expected);
    QColor faint = color;
    faint.setAlphaF(float{opacity});
    fillSharp(painter, high.translated(offset, offset), faint);
    fillSharp(painter, high, Qt::white);
  }
  QImage actual = paper(GetParam());
  {
    QPainter painter(&actual);
    paintHardShadow(painter, high, {color, opacity, offset});
  }
  EXPECT_EQ(actual, expected);
}

TEST_P(HardShadowAtScale, IsDrawnWithoutFurtherThreads) {
  QImage image = paper(GetParam());
  QPainter painter(&image);
  paintHardShadow(painter, high, {color, opacity, offset});
  EXPECT_EQ(drawingThreads(), 0);
}

}  // namespace
}  // namespace vantorel
