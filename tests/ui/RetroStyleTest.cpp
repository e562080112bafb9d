#include "RetroStyle.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QStyleOption>
#include <QToolTip>

#include "AppTheme.h"
#include "Rendering.h"
#include "Typography.h"

namespace vantorel {
namespace {

TEST(RetroStyle, WritesToolTipsInTheFontAndTheColoursOfTheWindow) {
  RetroStyle style;
  style.polish(qApp);
  EXPECT_EQ(QToolTip::font(), monospaced(captionSize));
  EXPECT_EQ(QToolTip::palette().color(QPalette::ToolTipText), AppTheme::text());
  EXPECT_EQ(QToolTip::palette().color(QPalette::ToolTipBase), AppTheme::cardBackground());
}

TEST(RetroStyle, DrawsToolTipsAsOutlinedPlates) {
  const RetroStyle style;
  QImage picture(60, 20, QImage::Format_RGB32);
  QStyleOption option;
  option.rect = picture.rect();
  QPainter painter(&picture);
  style.drawPrimitive(QStyle::PE_PanelTipLabel, &option, &painter, nullptr);
  painter.end();
  EXPECT_EQ(picture.pixelColor(0, 0), AppTheme::borderColor());
  EXPECT_EQ(runLength(picture, {0, 10}, {1, 0}), 2);
  EXPECT_EQ(runLength(picture, {2, 10}, {1, 0}), 56);
  EXPECT_EQ(picture.pixelColor(30, 10), AppTheme::cardBackground());
  EXPECT_GT(style.pixelMetric(QStyle::PM_ToolTipLabelFrameWidth, nullptr, nullptr), 2);
}

}  // namespace
}  // namespace vantorel
