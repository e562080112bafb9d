#include "AppTheme.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

TEST(AppTheme, HasTheNineColoursOfThePalette) {
  EXPECT_EQ(AppTheme::background(), QColor(0xE0, 0xE0, 0xE0));
  EXPECT_EQ(AppTheme::cardBackground(), QColor(255, 255, 255));
  EXPECT_EQ(AppTheme::accent(), QColor(0xFF, 0x00, 0x4D));
  EXPECT_EQ(AppTheme::secondaryAccent(), QColor(0x29, 0xAD, 0xFF));
  EXPECT_EQ(AppTheme::success(), QColor(0x00, 0xE4, 0x36));
  EXPECT_EQ(AppTheme::warning(), QColor(0xFF, 0x6B, 0x9D));
  EXPECT_EQ(AppTheme::text(), QColor(0x1D, 0x1D, 0x1D));
  EXPECT_EQ(AppTheme::secondaryText(), QColor(0x5F, 0x57, 0x4F));
  EXPECT_EQ(AppTheme::borderColor(), QColor(0, 0, 0));
}

TEST(AppTheme, SharesEachColour) { EXPECT_EQ(&AppTheme::accent(), &AppTheme::accent()); }

TEST(AppTheme, FadesAColourByItsOpacityAlone) {
  const QColor half = AppTheme::faded(AppTheme::accent(), 0.5);
  EXPECT_EQ(half.rgb(), AppTheme::accent().rgb());
  EXPECT_NEAR(half.alphaF(), 0.5, 1e-4);
}

}  // namespace
}  // namespace vantorel
