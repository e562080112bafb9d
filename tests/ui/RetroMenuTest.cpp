#include "RetroMenu.h"

#include <gtest/gtest.h>

#include <QTest>

#include "AppTheme.h"
#include "Rendering.h"

namespace vantorel {
namespace {

class LanguageMenu : public RetroMenu {
 public:
  LanguageMenu()
      : english(addAction(QStringLiteral("English"))), chinese(addAction(QStringLiteral("简体中文"))) {
    english->setCheckable(true);
    chinese->setCheckable(true);
    resize(sizeHint());
  }

  QAction* english;
  QAction* chinese;
};

TEST(RetroMenu, IsWhiteAndSquareWithAnOutlineOfTwoPoints) {
  LanguageMenu menu;
  const QImage image = rendered(menu);
  EXPECT_EQ(runLength(image, {0, 0}, {1, 0}), menu.width());
  EXPECT_EQ(runLength(image, {0, menu.height() / 2}, {1, 0}), 2);
  EXPECT_EQ(image.pixelColor(3, 3), QColor(Qt::white));
}

TEST(RetroMenu, MarksTheCheckedEntryBesideItsText) {
  LanguageMenu menu;
  const auto inkBeside = [&menu](QAction* entry) {
    const QRect place = menu.actionGeometry(entry);
    const QImage image = rendered(menu).copy(place.left() + 8, place.top(), 12, place.height());
    return image.width() * image.height() - countOf(image, Qt::white);
  };
  menu.chinese->setChecked(true);
  EXPECT_EQ(inkBeside(menu.english), 0);
  EXPECT_GT(inkBeside(menu.chinese), 10);
}

TEST(RetroMenu, ShowsTheCurrentEntryInBlueAndChoosesItByKey) {
  LanguageMenu menu;
  int chosen = 0;
  QObject::connect(menu.chinese, &QAction::triggered, [&chosen] { ++chosen; });
  menu.popup({0, 0});
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&menu, 30000));
  QTest::keyClick(&menu, Qt::Key_Down);
  QTest::keyClick(&menu, Qt::Key_Down);
  const QImage image = rendered(menu);
  EXPECT_EQ(image.pixelColor(menu.actionGeometry(menu.chinese).topLeft() + QPoint(4, 4)),
            AppTheme::secondaryAccent());
  EXPECT_EQ(image.pixelColor(menu.actionGeometry(menu.english).topLeft() + QPoint(4, 4)), QColor(Qt::white));
  QTest::keyClick(&menu, Qt::Key_Return);
  EXPECT_EQ(chosen, 1);
  EXPECT_FALSE(menu.isVisible());
}

TEST(RetroMenu, HasRoomForTheTextsAndTheirKeys) {
  RetroMenu menu;
  QAction* const entry = menu.addAction(QStringLiteral("Close Window"));
  entry->setShortcut(QKeySequence(QStringLiteral("Ctrl+W")));
  menu.resize(menu.sizeHint());
  const QFontMetrics metrics(menu.font());
  EXPECT_GE(menu.actionGeometry(entry).width(),
            26 + metrics.horizontalAdvance("Close Window") + 12 + metrics.horizontalAdvance("Ctrl+W") + 10);
}

}  // namespace
}  // namespace vantorel
