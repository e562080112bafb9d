#include "RetroScrollArea.h"

#include <gtest/gtest.h>

#include <QTest>

#include "AppTheme.h"
#include "Rendering.h"

namespace vantorel {
namespace {

/// An area of 100 by 100 points over a red page, with empty content of a height.
class Scene {
 public:
  explicit Scene(int contentHeight) {
    page.resize(100, 100);
    page.setAutoFillBackground(true);
    page.setPalette(QPalette(AppTheme::accent()));
    area.setGeometry(0, 0, 100, 100);
    auto* content = new QWidget;
    content->setMinimumHeight(contentHeight);
    area.setContent(content);
    page.show();
  }

  QImage image() { return page.grab().toImage(); }

  QWidget page;
  RetroScrollArea area{&page};
};

TEST(RetroScrollArea, LetsWhatIsBehindShowThrough) {
  Scene scene(50);
  const QColor behind = scene.page.palette().color(QPalette::Window);
  EXPECT_EQ(countOf(scene.image(), behind), 100 * 100) << "no frame, no fill, no bar that is not needed";
}

TEST(RetroScrollArea, ShowsASquareBarForHigherContent) {
  Scene scene(400);
  const QImage image = scene.image();
  const QColor behind = scene.page.palette().color(QPalette::Window);
  EXPECT_EQ(image.pixelColor(50, 50), behind);
  EXPECT_EQ(scene.area.verticalScrollBar()->width(), 14);
  EXPECT_EQ(image.pixelColor(86, 50), QColor(Qt::black));
  EXPECT_EQ(runLength(image, {86, 99}, {1, 0}), 14) << "square corners";
  EXPECT_GT(countOf(image, Qt::white), 50) << "the handle";
}

TEST(RetroScrollArea, ScrollsByKeyAndByTheBar) {
  Scene scene(400);
  QScrollBar* const bar = scene.area.verticalScrollBar();
  EXPECT_EQ(bar->maximum(), 300);
  QTest::keyClick(&scene.area, Qt::Key_PageDown);
  EXPECT_GT(bar->value(), 0);
  const int scrolled = bar->value();
  QTest::mouseClick(bar, Qt::LeftButton, {}, {7, bar->height() - 4});
  EXPECT_GT(bar->value(), scrolled);
}

}  // namespace
}  // namespace vantorel
