#include "Icons.h"

#include <gtest/gtest.h>

#include <QAccessible>

#include "AppTheme.h"
#include "Rendering.h"

namespace vantorel {
namespace {

const auto allIcons = {Icon::controller, Icon::unpluggedCable, Icon::globe, Icon::checkMark, Icon::chevron};

QImage drawn(Icon icon, int size, double scale = 1) {
  IconView view(icon, size, Qt::black);
  return rendered(view, scale);
}

TEST(Icons, AreFiveDifferentDrawings) {
  for (const Icon icon : allIcons) {
    for (const Icon other : allIcons) EXPECT_EQ(drawn(icon, 24) == drawn(other, 24), icon == other);
  }
}

TEST(Icons, AreDrawnAnewAtEveryScale) {
  for (const Icon icon : allIcons) {
    EXPECT_EQ(drawn(icon, 24, 2), drawn(icon, 48)) << "as sharp as twice the size";
    EXPECT_LT(countOf(drawn(icon, 10), AppTheme::background()), 85) << "seen at ten points";
  }
}

TEST(Icons, StayInsideTheirSquare) {
  for (const Icon icon : allIcons) {
    QImage image(64, 64, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    paintIcon(painter, icon, QRectF(8, 16, 48, 32), Qt::black);
    painter.end();
    image.setPixelColor(0, 0, Qt::white);
    for (int y = 0; y < 64; ++y) {
      for (int x = 0; x < 64; ++x) {
        if (!QRect(16, 16, 32, 32).contains(x, y)) {
          ASSERT_EQ(image.pixelColor(x, y), QColor(Qt::white)) << x << ", " << y;
        }
      }
    }
  }
}

TEST(Icons, HaveTheirColourAsTheIconOfAnEntry) {
  const QImage image = symbolIcon(Icon::checkMark, AppTheme::accent()).pixmap(32, 32).toImage();
  EXPECT_GT(countOf(image.convertToFormat(QImage::Format_RGB32), AppTheme::accent()), 50);
}

TEST(Icons, ChangeInTheirView) {
  IconView view(Icon::controller, 24, Qt::black);
  view.setIcon(Icon::unpluggedCable);
  view.setColor(AppTheme::accent());
  EXPECT_EQ(view.icon(), Icon::unpluggedCable);
  EXPECT_EQ(view.size(), QSize(24, 24));
  EXPECT_GT(countOf(rendered(view), AppTheme::accent()), 20);
  QAccessibleInterface* const shown = QAccessible::queryAccessibleInterface(&view);
  ASSERT_NE(shown, nullptr);
  EXPECT_EQ(shown->role(), QAccessible::Graphic);
}

}  // namespace
}  // namespace vantorel
