#include "MappingList.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAccessible>
#include <QTest>
#include <cmath>
#include <map>
#include <string>

#include "AppTheme.h"
#include "PickerWindow.h"
#include "Rendering.h"
#include "TextLine.h"

namespace vantorel {
namespace {

using testing::ElementsAre;

class MappingListTest : public testing::Test {
 protected:
  std::vector<std::string> rowNames() const {
    std::vector<std::string> names;
    for (const GamepadButton button : allGamepadButtons()) {
      names.push_back(host.row(button)->accessibleName().toStdString());
    }
    return names;
  }

  /// The texts of the header that show, from left to right.
  std::vector<std::string> headerTexts() const {
    std::vector<std::string> texts;
    for (const TextLine* line : host.list->findChildren<TextLine*>()) {
      if (!line->isHidden()) texts.push_back(line->text().toStdString());
    }
    return texts;
  }

  QImage picture(GamepadButton button) const { return rendered(*host.row(button)); }

  QColor background(GamepadButton button) const { return picture(button).pixelColor(4, 4); }
  QColor marker(GamepadButton button) const { return picture(button).pixelColor(15, 21); }

  /// The buttons whose rows are tinted.
  std::vector<GamepadButton> tinted() const {
    const QColor tint = blended(AppTheme::accent(), 0.1, Qt::white);
    std::vector<GamepadButton> buttons;
    for (const GamepadButton button : allGamepadButtons()) {
      if (isNearly(background(button), tint)) buttons.push_back(button);
    }
    return buttons;
  }

  PickerWindow host;
};

TEST_F(MappingListTest, ShowsTheDefaultsAtFirstStart) {
  EXPECT_THAT(rowNames(), ElementsAre("A: SPACE", "B: ESC", "X: ENTER", "Y: TAB", "L1 (LB): ---",
                                      "R1 (RB): ---", "L2 (LT): ---", "R2 (RT): ---", "LEFT_STICK: ---",
                                      "RIGHT_STICK: ---", "D-PAD_UP: UP", "D-PAD_DOWN: DOWN",
                                      "D-PAD_LEFT: LEFT", "D-PAD_RIGHT: RIGHT", "MENU: ---", "OPTIONS: ---"));
  EXPECT_THAT(tinted(), testing::IsEmpty()) << "no button was pressed yet";
}

TEST_F(MappingListTest, DrawsKeysOfMappedRowsInBlueAndDashesInGrey) {
  for (const GamepadButton button : allGamepadButtons()) {
    const bool isMapped = host.state.mappingStore.getKeyboardKey(button).has_value();
    const QImage image = picture(button);
    const QColor grey = blended(AppTheme::secondaryText(), 0.5, Qt::white);
    const QImage keyCell = image.copy(163, 0, image.width() - 200, 44);
    EXPECT_EQ(countOf(keyCell, AppTheme::secondaryAccent()) > 0, isMapped) << rawValue(button);
    int greyPixels = 0;
    for (int y = 0; y < 44; ++y) {
      for (int x = 0; x < 60; ++x) greyPixels += isNearly(keyCell.pixelColor(x, y), grey) ? 1 : 0;
    }
    EXPECT_EQ(greyPixels > 0, !isMapped) << rawValue(button);
  }
}

TEST_F(MappingListTest, TintsTheRowOfTheButtonPressedLast) {
  host.state.setEnabled(true);
  host.pressOnController(GamepadButton::buttonA);
  EXPECT_THAT(tinted(), ElementsAre(GamepadButton::buttonA));
  EXPECT_EQ(marker(GamepadButton::buttonA), AppTheme::accent());
  EXPECT_EQ(marker(GamepadButton::buttonB), AppTheme::secondaryText());
  host.pressOnController(GamepadButton::buttonB);
  EXPECT_THAT(tinted(), ElementsAre(GamepadButton::buttonB));
  EXPECT_EQ(marker(GamepadButton::buttonA), AppTheme::secondaryText());
}

TEST_F(MappingListTest, TintsTheRowOfAnUnmappedButtonToo) {
  host.pressOnController(GamepadButton::leftShoulder);
  EXPECT_THAT(tinted(), ElementsAre(GamepadButton::leftShoulder));
  EXPECT_EQ(marker(GamepadButton::leftShoulder), AppTheme::accent());
}

TEST_F(MappingListTest, SaysThatMappingIsOffAndNothingWhileItIsOn) {
  EXPECT_THAT(headerTexts(), ElementsAre("MACRO_CONFIGURATION", "[ OFFLINE ]"));
  host.state.setEnabled(true);
  EXPECT_THAT(headerTexts(), ElementsAre("MACRO_CONFIGURATION"));
  host.state.setEnabled(false);
  host.state.chooseLanguage(AppLanguage::chinese);
  EXPECT_THAT(headerTexts(), ElementsAre("宏配置", "[ 离线 ]"));
}

TEST_F(MappingListTest, ChangesEveryTextWithTheLanguage) {
  host.state.chooseLanguage(AppLanguage::chinese);
  EXPECT_THAT(rowNames(), ElementsAre("A: 空格", "B: ESC", "X: 回车", "Y: Tab", "左肩键 (L1): ---",
                                      "右肩键 (R1): ---", "左扳机 (L2): ---", "右扳机 (R2): ---",
                                      "左摇杆按下: ---", "右摇杆按下: ---", "方向键上: ↑", "方向键下: ↓",
                                      "方向键左: ←", "方向键右: →", "菜单键: ---", "选项键: ---"));
  const QImage chinese = picture(GamepadButton::buttonA);
  host.state.chooseLanguage(AppLanguage::english);
  EXPECT_NE(picture(GamepadButton::buttonA), chinese);
  EXPECT_EQ(rowNames().front(), "A: SPACE");
}

TEST_F(MappingListTest, KeepsItsSizeInBothLanguagesAndBothStates) {
  const QSize english = host.list->sizeHint();
  host.state.chooseLanguage(AppLanguage::chinese);
  EXPECT_EQ(host.list->sizeHint().height(), english.height());
  host.state.setEnabled(true);
  EXPECT_EQ(host.list->sizeHint().height(), english.height());
}

TEST_F(MappingListTest, OpensThePickerOnAClickAnywhereOnARow) {
  host.activate();
  MappingRow* row = host.row(GamepadButton::buttonX);
  for (const QPoint place : {QPoint(1, 1), QPoint(161, 22), QPoint(row->width() - 2, 42)}) {
    QTest::mouseClick(row, Qt::LeftButton, {}, place);
    EXPECT_EQ(host.state.selectedGamepadButton.get(), GamepadButton::buttonX);
    host.state.closeKeyPicker();
  }
}

TEST_F(MappingListTest, OpensThePickerByKeyboard) {
  host.activate();
  host.row(GamepadButton::menu)->setFocus();
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
    QTest::keyClick(&host.window, key);
    EXPECT_FALSE(host.state.selectedGamepadButton.get()) << "the window itself has no use for the key";
    QTest::keyClick(host.row(GamepadButton::menu), key);
    EXPECT_EQ(host.state.selectedGamepadButton.get(), GamepadButton::menu);
    host.state.closeKeyPicker();
  }
}

TEST_F(MappingListTest, OpensThePickerOnceWhileTheReturnKeyIsHeld) {
  QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"), true);
  QApplication::sendEvent(host.row(GamepadButton::menu), &repeated);
  EXPECT_FALSE(host.state.selectedGamepadButton.get());
}

TEST_F(MappingListTest, ShowsANewKeyAtOnce) {
  host.state.openKeyPicker(GamepadButton::leftShoulder);
  host.state.chooseKey(KeyboardKey::f5);
  EXPECT_EQ(host.row(GamepadButton::leftShoulder)->accessibleName(), QStringLiteral("L1 (LB): F5"));
}

TEST_F(MappingListTest, IsReadAsButtonsByAssistiveTechnology) {
  QAccessibleInterface* row = QAccessible::queryAccessibleInterface(host.row(GamepadButton::buttonA));
  EXPECT_EQ(row->role(), QAccessible::Button);
  EXPECT_EQ(row->text(QAccessible::Name), QStringLiteral("A: SPACE"));
  host.activate();
  row->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  const auto isOpen = [&] { return host.state.selectedGamepadButton.get() == GamepadButton::buttonA; };
  EXPECT_TRUE(QTest::qWaitFor(isOpen, 30000));
}

/// Counts how often each row is painted.
class PaintCounter : public QObject {
 public:
  explicit PaintCounter(const PickerWindow& host) {
    for (const GamepadButton button : allGamepadButtons()) host.row(button)->installEventFilter(this);
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++paints[watched];
    return false;
  }

  /// The number of paints by row since the last call.
  std::map<QObject*, int> take() {
    QTest::qWait(1);
    QApplication::sendPostedEvents();
    return std::exchange(paints, {});
  }

 private:
  std::map<QObject*, int> paints;
};

TEST_F(MappingListTest, PaintsOnlyTheRowsThatChanged) {
  using testing::Pair;
  using testing::UnorderedElementsAre;
  host.activate();
  PaintCounter counter(host);
  while (!counter.take().empty()) continue;

  host.state.controllerManager.lastButtonPressed = std::optional(GamepadButton::buttonA);
  EXPECT_THAT(counter.take(), ElementsAre(Pair(host.row(GamepadButton::buttonA), 1)));
  host.state.controllerManager.lastButtonPressed = std::optional(GamepadButton::buttonA);
  EXPECT_THAT(counter.take(), testing::IsEmpty());
  host.state.controllerManager.lastButtonPressed = std::optional(GamepadButton::buttonY);
  EXPECT_THAT(counter.take(), UnorderedElementsAre(Pair(host.row(GamepadButton::buttonA), 1),
                                                   Pair(host.row(GamepadButton::buttonY), 1)));
  host.state.mappingStore.update(GamepadButton::buttonX, KeyboardKey::z);
  EXPECT_THAT(counter.take(), ElementsAre(Pair(host.row(GamepadButton::buttonX), 1)));
  host.state.mappingStore.update(GamepadButton::buttonX, KeyboardKey::z);
  EXPECT_THAT(counter.take(), testing::IsEmpty());
}

class MappingListAtScale : public testing::TestWithParam<double> {
 protected:
  MappingListAtScale() { host.activate(); }

  /// Where an edge at `points` lies.
  int pixels(double points) const { return static_cast<int>(std::lround(points * GetParam())); }

  QImage box() {
    QWidget* rows = host.row(GamepadButton::buttonA)->parentWidget();
    boxSize = rows->size();
    return rendered(*rows, GetParam());
  }

  QSize boxSize;
  PickerWindow host;
};

INSTANTIATE_TEST_SUITE_P(MappingList, MappingListAtScale, allScales(), scaleName);

TEST_P(MappingListAtScale, HasRowsOf44PointsBetweenDividersOfOnePoint) {
  const QImage image = box();
  EXPECT_EQ(boxSize.height(), 2 + 16 * 44 + 15 * 1 + 2);
  const int x = pixels(158);  // beside every name
  const int divider = std::max(1, pixels(1));
  EXPECT_EQ(runLength(image, {x, 0}, {0, 1}), pixels(2));
  for (int above = 0; above < 15; ++above) {
    const int top = pixels(2 + above * 45 + 44);
    EXPECT_EQ(image.pixelColor(x, top - 1), QColor(Qt::white)) << above;
    EXPECT_EQ(image.pixelColor(x, top), QColor(Qt::black)) << above;
    EXPECT_EQ(runLength(image, {x, top}, {0, 1}), divider) << above;
    EXPECT_EQ(runLength(image, {pixels(2), top}, {1, 0}), image.width() - pixels(2)) << above;
  }
  EXPECT_EQ(runLength(image, {x, image.height() - 1}, {0, -1}), pixels(2)) << "no divider after the last row";
  EXPECT_EQ(runLength(image, {x, image.height() - 1 - pixels(2)}, {0, -1}), pixels(44));
}

TEST_P(MappingListAtScale, HasABorderOfTwoPoints) {
  const QImage image = box();
  const int y = pixels(10);  // above the name of the first row
  EXPECT_EQ(runLength(image, {0, y}, {1, 0}), pixels(2));
  EXPECT_EQ(runLength(image, {image.width() - 1, y}, {-1, 0}), pixels(2));
  EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::black));
}

TEST_P(MappingListAtScale, HasUnbrokenVerticalLinesWhereverItStands) {
  QWidget* rows = host.row(GamepadButton::buttonA)->parentWidget();
  for (const int left : {0, 1, 2, 3}) {
    QWidget page;
    page.resize(700, 800);
    rows->setParent(&page);
    rows->setGeometry(left, left, 653, rows->height());
    rows->show();
    const QImage image = rendered(page, GetParam());
    const int middle = pixels(left + 10);
    const int right = pixels(left + 653) - 1;
    const int border = runLength(image, {right, middle}, {-1, 0});
    EXPECT_NEAR(border, 2 * GetParam(), 0.5);
    for (int y = pixels(left); y < pixels(left + rows->height()); ++y) {
      EXPECT_GE(runLength(image, {right, y}, {-1, 0}), border) << y;
      EXPECT_EQ(image.pixelColor(pixels(left + 2 + 160), y), QColor(Qt::black)) << y;
    }
    rows->setParent(nullptr);
  }
  delete rows;
}

TEST_P(MappingListAtScale, HasACellOf160PointsAndARuleOfTwo) {
  MappingRow row(GamepadButton::buttonA);
  row.resize(400, 44);
  const QImage image = rendered(row, GetParam());
  EXPECT_EQ(runLength(image, {0, 0}, {1, 0}), pixels(160));
  EXPECT_EQ(runLength(image, {pixels(160), 0}, {1, 0}), pixels(162) - pixels(160));
  EXPECT_EQ(runLength(image, {pixels(160), 0}, {0, 1}), pixels(44)) << "the rule is as high as the row";
  EXPECT_EQ(image.pixelColor(pixels(160), 0), QColor(Qt::black));
}

TEST_P(MappingListAtScale, HasASquareMarkerTwelvePointsFromTheEdge) {
  MappingRow row(GamepadButton::buttonA);
  row.resize(400, 44);
  const QImage image = rendered(row, GetParam());
  const QPoint corner(pixels(12), pixels(18));
  EXPECT_EQ(runLength(image, {0, pixels(22)}, {1, 0}), pixels(12));
  EXPECT_EQ(image.pixelColor(corner), AppTheme::secondaryText());
  EXPECT_EQ(image.pixelColor(corner - QPoint(0, 1)), QColor(Qt::white));
  EXPECT_EQ(runLength(image, corner, {1, 0}), pixels(20) - pixels(12));
  EXPECT_EQ(runLength(image, corner, {0, 1}), pixels(26) - pixels(18));
}

TEST_P(MappingListAtScale, PadsTheKeyCellByTwelvePointsAtBothSides) {
  MappingRow row(GamepadButton::buttonA);
  row.show({AppLanguage::english, KeyboardKey::deleteKey, false});
  row.resize(400, 44);
  const QImage image = rendered(row, GetParam());
  int leftInk = image.width();
  int rightInk = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = pixels(162) + 1; x < image.width(); ++x) {
      if (image.pixelColor(x, y) == QColor(Qt::white)) continue;
      leftInk = std::min(leftInk, x);
      rightInk = std::max(rightInk, x);
    }
  }
  EXPECT_NEAR(leftInk, pixels(174), pixels(2)) << "a letter has a little room beside it";
  EXPECT_LT(rightInk, pixels(388));
  EXPECT_GE(rightInk, pixels(388 - 5)) << "the chevron fills most of its ten points";
}

}  // namespace
}  // namespace vantorel
