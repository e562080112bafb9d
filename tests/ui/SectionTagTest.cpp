#include "SectionTag.h"

#include <gtest/gtest.h>

#include "AppTheme.h"
#include "Rendering.h"

namespace vantorel {
namespace {

TEST(SectionTag, IsWhiteOnABlackPlateAsWideAsItsText) {
  SectionTag tag("SYS_CONNECTION");
  const int plate = tag.sizeHint().width();
  tag.resize(plate + 100, tag.sizeHint().height());
  const QImage image = rendered(tag, 2);
  EXPECT_EQ(runLength(image, {0, 0}, {1, 0}), plate * 2);
  EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::black));
  EXPECT_EQ(runLength(image, {0, 0}, {0, 1}), image.height());
  EXPECT_GT(countOf(image, Qt::white), 20);
}

TEST(SectionTag, WrapsAfterItsUnderscores) {
  SectionTag tag("SUPPORTED_CONTROLLERS");
  EXPECT_GT(tag.heightForWidth(85), tag.heightForWidth(200));
  tag.resize(85, tag.heightForWidth(85));
  const QImage image = rendered(tag);
  EXPECT_LE(runLength(image, {0, 0}, {1, 0}), 85);
  EXPECT_EQ(image.pixelColor(0, tag.height() - 1), QColor(Qt::black)) << "the plate holds both lines";
}

}  // namespace
}  // namespace vantorel
