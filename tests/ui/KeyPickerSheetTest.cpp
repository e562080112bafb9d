#include "KeyPickerSheet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>
#include <cmath>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "AppTheme.h"
#include "CloseButton.h"
#include "KeyButton.h"
#include "KeyGrid.h"
#include "PickerWindow.h"
#include "Rendering.h"
#include "TextLine.h"

namespace vantorel {
namespace {

class KeyPickerSheetTest : public testing::Test {
 protected:
  KeyPickerSheetTest() { host.activate(); }

  KeyPickerView* picker() const { return host.sheet->picker(); }
  KeyButton* key(KeyboardKey wanted) const { return picker()->keyGrid()->key(wanted); }

  /// The key that has the keyboard.
  std::optional<KeyboardKey> focusedKey() const {
    const auto* button = qobject_cast<KeyButton*>(QApplication::focusWidget());
    return button != nullptr ? std::optional(button->key()) : std::nullopt;
  }

  static void type(Qt::Key pressed, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget(), pressed, modifiers);
  }

  /// Clicks into the window; whatever lies there gets it.
  void clickAt(QPoint place) const {
    QTest::mouseClick(host.window.windowHandle(), Qt::LeftButton, {}, place);
  }

  bool isInView(const QWidget* part) const {
    const QWidget* viewport = picker()->scrollArea()->viewport();
    const QRect place(part->mapTo(viewport, QPoint(0, 0)), part->size());
    return viewport->rect().contains(place);
  }

  PickerWindow host;
};

TEST_F(KeyPickerSheetTest, ShowsWhileAButtonIsSelected) {
  EXPECT_FALSE(host.sheet->isVisible());
  QTest::mouseClick(host.row(GamepadButton::buttonB), Qt::LeftButton);
  ASSERT_TRUE(host.sheet->isVisible());
  EXPECT_EQ(picker()->gamepadButton(), GamepadButton::buttonB);
  EXPECT_TRUE(key(KeyboardKey::escape)->isChecked());
  host.state.closeKeyPicker();
  EXPECT_FALSE(host.sheet->isVisible());
  EXPECT_EQ(picker(), nullptr);
}

TEST_F(KeyPickerSheetTest, ShowsAButtonThatWasSelectedBeforeTheSheetWasMade) {
  host.state.openKeyPicker(GamepadButton::menu);
  QWidget window;
  const KeyPickerSheet second(host.state, &window);
  ASSERT_NE(second.picker(), nullptr);
  EXPECT_EQ(second.picker()->gamepadButton(), GamepadButton::menu);
}

TEST_F(KeyPickerSheetTest, TurnsToAnotherButton) {
  host.state.openKeyPicker(GamepadButton::buttonA);
  host.state.openKeyPicker(GamepadButton::buttonY);
  EXPECT_EQ(picker()->gamepadButton(), GamepadButton::buttonY);
  EXPECT_EQ(focusedKey(), KeyboardKey::tab);
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(host.sheet->findChildren<KeyPickerView*>().size(), 1);
}

TEST_F(KeyPickerSheetTest, MapsTheButtonToTheClickedKeyAndCloses) {
  QTest::mouseClick(host.row(GamepadButton::leftShoulder), Qt::LeftButton);
  QTest::mouseClick(key(KeyboardKey::h), Qt::LeftButton);
  EXPECT_FALSE(host.sheet->isVisible());
  EXPECT_EQ(host.row(GamepadButton::leftShoulder)->accessibleName(), QStringLiteral("L1 (LB): H"));
  EXPECT_THAT(host.storedMappings(),
              testing::HasSubstr(R"({"gamepadButton":"leftShoulder","keyboardKey":"h"})"));
}

TEST_F(KeyPickerSheetTest, SavesAndClosesAlsoForThePresentKey) {
  host.state.openKeyPicker(GamepadButton::buttonB);
  host.platform.userDefaults.prepareData(mappingsKey, "lost");
  QTest::mouseClick(key(KeyboardKey::escape), Qt::LeftButton);
  EXPECT_FALSE(host.sheet->isVisible());
  EXPECT_THAT(host.storedMappings(),
              testing::HasSubstr(R"({"gamepadButton":"buttonB","keyboardKey":"escape"})"));
}

TEST_F(KeyPickerSheetTest, ChangesNothingWhenItIsClosed) {
  const std::string before = host.storedMappings();
  host.platform.userDefaults.prepareData(mappingsKey, "untouched");
  host.state.openKeyPicker(GamepadButton::buttonB);
  QTest::mouseClick(picker()->closeButton(), Qt::LeftButton);
  EXPECT_FALSE(host.sheet->isVisible());
  host.state.openKeyPicker(GamepadButton::buttonB);
  type(Qt::Key_Escape);
  EXPECT_FALSE(host.sheet->isVisible());
  EXPECT_EQ(host.storedMappings(), "untouched");
  EXPECT_EQ(host.state.mappingStore.storedForm(), before);
}

TEST_F(KeyPickerSheetTest, KeepsTheListBehindItUnchanged) {
  QTest::mouseClick(host.row(GamepadButton::buttonB), Qt::LeftButton);
  EXPECT_EQ(host.row(GamepadButton::buttonB)->accessibleName(), QStringLiteral("B: ESC"));
}

TEST_F(KeyPickerSheetTest, OpensWithThePresentKeyFocusedAndInView) {
  for (const KeyboardKey present : {KeyboardKey::escape, KeyboardKey::f12, KeyboardKey::num0}) {
    host.state.mappingStore.update(GamepadButton::buttonB, present);
    host.state.openKeyPicker(GamepadButton::buttonB);
    EXPECT_EQ(focusedKey(), present);
    EXPECT_TRUE(isInView(key(present))) << rawValue(present);
    host.state.closeKeyPicker();
  }
}

TEST_F(KeyPickerSheetTest, OpensWithTheFirstKeyFocusedForAnUnmappedButton) {
  host.state.openKeyPicker(GamepadButton::menu);
  EXPECT_EQ(focusedKey(), KeyboardKey::space);
}

TEST_F(KeyPickerSheetTest, ChoosesTheFocusedKeyWithReturnAndSpace) {
  for (const Qt::Key chooser : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
    host.state.openKeyPicker(GamepadButton::options);
    type(Qt::Key_Right);
    const auto focused = focusedKey();
    type(chooser);
    EXPECT_FALSE(host.sheet->isVisible());
    EXPECT_EQ(host.state.mappingStore.getKeyboardKey(GamepadButton::options), focused);
  }
}

TEST_F(KeyPickerSheetTest, MovesBetweenKeysWithTheArrowKeys) {
  host.state.openKeyPicker(GamepadButton::menu);
  const auto after = [&](Qt::Key pressed) {
    type(pressed);
    return focusedKey();
  };
  EXPECT_EQ(after(Qt::Key_Up), KeyboardKey::space) << "nothing is above";
  EXPECT_EQ(after(Qt::Key_Left), KeyboardKey::space);
  EXPECT_EQ(after(Qt::Key_Right), KeyboardKey::returnKey);
  EXPECT_EQ(after(Qt::Key_Right), KeyboardKey::escape);
  EXPECT_EQ(after(Qt::Key_Right), KeyboardKey::tab) << "on to the next row";
  EXPECT_EQ(after(Qt::Key_Left), KeyboardKey::escape);
  EXPECT_EQ(after(Qt::Key_Down), KeyboardKey::deleteKey) << "the nearest of a short row";
  EXPECT_EQ(after(Qt::Key_Down), KeyboardKey::downArrow) << "into the next section";
  EXPECT_EQ(after(Qt::Key_Down), KeyboardKey::b);
  EXPECT_EQ(after(Qt::Key_Down), KeyboardKey::g);
  EXPECT_EQ(after(Qt::Key_Up), KeyboardKey::b);
  EXPECT_EQ(after(Qt::Key_End), KeyboardKey::f12);
  EXPECT_EQ(after(Qt::Key_Down), KeyboardKey::f12) << "nothing is below";
  EXPECT_EQ(after(Qt::Key_Right), KeyboardKey::f12);
  EXPECT_EQ(after(Qt::Key_Up), KeyboardKey::f6);
  EXPECT_EQ(after(Qt::Key_Up), KeyboardKey::num9);
  EXPECT_EQ(after(Qt::Key_Home), KeyboardKey::space);
}

TEST_F(KeyPickerSheetTest, KeepsTheFocusedKeyInView) {
  host.state.openKeyPicker(GamepadButton::menu);
  for (std::size_t step = 1; step < keyboardKeyCount; ++step) {
    type(Qt::Key_Right);
    ASSERT_TRUE(isInView(QApplication::focusWidget())) << step;
  }
  EXPECT_EQ(focusedKey(), KeyboardKey::f12);
  const QScrollBar* bar = picker()->scrollArea()->verticalScrollBar();
  EXPECT_EQ(bar->value(), bar->maximum()) << "the padding below the last row shows";
  type(Qt::Key_Home);
  EXPECT_EQ(bar->value(), 0) << "the first heading shows";
}

TEST_F(KeyPickerSheetTest, LetsTheTabKeyGoRoundInsideAlone) {
  host.state.openKeyPicker(GamepadButton::menu);
  type(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(QApplication::focusWidget(), picker()->closeButton());
  type(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(focusedKey(), KeyboardKey::f12);
  type(Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), picker()->closeButton());
  for (std::size_t step = 0; step < keyboardKeyCount; ++step) {
    type(Qt::Key_Tab);
    ASSERT_TRUE(focusedKey()) << step;
    ASSERT_TRUE(isInView(QApplication::focusWidget())) << step;
  }
  EXPECT_EQ(focusedKey(), KeyboardKey::f12);
}

TEST_F(KeyPickerSheetTest, TakesTheKeyboardBackFromTheWindowBehind) {
  host.state.openKeyPicker(GamepadButton::buttonB);
  host.other->setFocus();
  EXPECT_EQ(focusedKey(), KeyboardKey::escape);
}

TEST_F(KeyPickerSheetTest, GivesTheKeyboardBackToTheRowThatOpenedIt) {
  MappingRow* row = host.row(GamepadButton::buttonX);
  QTest::mouseClick(row, Qt::LeftButton);
  type(Qt::Key_Escape);
  EXPECT_EQ(QApplication::focusWidget(), row);
  row->click();
  QTest::mouseClick(key(KeyboardKey::q), Qt::LeftButton);
  EXPECT_EQ(QApplication::focusWidget(), row);
  host.other->setFocus();
  EXPECT_EQ(QApplication::focusWidget(), host.other) << "the closed picker holds it no longer";
}

TEST_F(KeyPickerSheetTest, DoesNotScrollThePageWhenItCloses) {
  host.window.resize(900, 500);
  QTest::qWait(1);
  QScrollBar* bar = host.page->verticalScrollBar();
  bar->setValue(150);
  QTest::mouseClick(host.row(GamepadButton::leftTrigger), Qt::LeftButton);
  QTest::mouseClick(key(KeyboardKey::space), Qt::LeftButton);
  EXPECT_EQ(bar->value(), 150);
}

TEST_F(KeyPickerSheetTest, KeepsMouseAndWheelFromTheWindowBehind) {
  host.state.openKeyPicker(GamepadButton::buttonB);
  const QPoint onFirstRow = host.row(GamepadButton::buttonA)->mapTo(&host.window, QPoint(20, 20));
  ASSERT_FALSE(picker()->geometry().contains(onFirstRow));
  clickAt(onFirstRow);
  clickAt({2, 2});
  EXPECT_EQ(host.state.selectedGamepadButton.get(), GamepadButton::buttonB);
  EXPECT_TRUE(host.sheet->isVisible());
  EXPECT_EQ(focusedKey(), KeyboardKey::escape);

  host.window.resize(900, 500);
  QTest::qWait(1);
  QWheelEvent wheel(onFirstRow, host.window.mapToGlobal(onFirstRow), {0, -120}, {0, -120}, Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(host.window.windowHandle(), &wheel);
  EXPECT_EQ(host.page->verticalScrollBar()->value(), 0);
}

TEST_F(KeyPickerSheetTest, StaysOpenWhenItsOwnSurfaceIsClicked) {
  host.state.openKeyPicker(GamepadButton::buttonB);
  clickAt(picker()->geometry().topLeft() + QPoint(100, 20));
  clickAt(picker()->geometry().topLeft() + QPoint(10, 300));
  EXPECT_TRUE(host.sheet->isVisible());
  EXPECT_EQ(focusedKey(), KeyboardKey::escape);
}

TEST_F(KeyPickerSheetTest, DoesNotScrollAKeyAwayUnderTheMouse) {
  host.state.openKeyPicker(GamepadButton::menu);
  QScrollBar* bar = picker()->scrollArea()->verticalScrollBar();
  // The row of "0" to "4" is cut by the lower edge of the view.
  const KeyButton* zero = key(KeyboardKey::num0);
  bar->setValue(zero->y() + 16 - picker()->scrollArea()->viewport()->height());
  ASSERT_FALSE(isInView(zero));
  clickAt(zero->mapTo(&host.window, QPoint(20, 8)));
  EXPECT_EQ(host.state.mappingStore.getKeyboardKey(GamepadButton::menu), KeyboardKey::num0);
}

TEST_F(KeyPickerSheetTest, ChangesItsLanguageWithoutLosingItsPlace) {
  host.state.openKeyPicker(GamepadButton::leftShoulder);
  type(Qt::Key_End);
  type(Qt::Key_Left);
  QScrollBar* bar = picker()->scrollArea()->verticalScrollBar();
  bar->setValue(bar->maximum() - 10);
  const int place = bar->value();
  host.state.chooseLanguage(AppLanguage::chinese);
  QTest::qWait(1);
  EXPECT_TRUE(host.sheet->isVisible());
  EXPECT_EQ(picker()->titleLine()->text(), QStringLiteral("选择按键::左肩键 (L1)"));
  EXPECT_EQ(key(KeyboardKey::space)->text(), QStringLiteral("空格"));
  EXPECT_EQ(bar->value(), place);
  EXPECT_EQ(focusedKey(), KeyboardKey::f11);
}

TEST_F(KeyPickerSheetTest, OpensInTheLanguageOfTheMoment) {
  host.state.chooseLanguage(AppLanguage::chinese);
  host.state.openKeyPicker(GamepadButton::buttonB);
  EXPECT_EQ(picker()->titleLine()->text(), QStringLiteral("选择按键::B"));
}

TEST_F(KeyPickerSheetTest, FollowsTheSizeOfTheWindow) {
  host.state.openKeyPicker(GamepadButton::buttonB);
  EXPECT_EQ(host.sheet->geometry(), host.window.rect());
  EXPECT_EQ(picker()->geometry(), QRect(200, 100, 500, 600));
  host.window.resize(1000, 700);
  QTest::qWait(1);
  EXPECT_EQ(host.sheet->geometry(), host.window.rect());
  EXPECT_EQ(picker()->geometry(), QRect(250, 50, 500, 600));
}

TEST_F(KeyPickerSheetTest, ShrinksInASmallWindowAndStillWorks) {
  host.window.setMinimumSize(1, 1);
  host.state.openKeyPicker(GamepadButton::menu);
  host.window.resize(420, 320);
  QTest::qWait(1);
  EXPECT_EQ(picker()->geometry(), QRect(12, 12, 420 - 24, 320 - 24)) << "the shadow has room";
  type(Qt::Key_End);
  EXPECT_TRUE(isInView(key(KeyboardKey::f12)));
  EXPECT_TRUE(picker()->rect().contains(picker()->closeButton()->geometry()));
  for (const KeyButton* button : picker()->keyGrid()->keys()) {
    EXPECT_GE(button->width(), button->sizeHint().width()) << button->text().toStdString();
  }
  type(Qt::Key_Return);
  EXPECT_EQ(host.state.mappingStore.getKeyboardKey(GamepadButton::menu), KeyboardKey::f12);
}

using ScaleAndLanguage = std::tuple<double, AppLanguage>;

class KeyPickerSheetAtScale : public testing::TestWithParam<ScaleAndLanguage> {
 protected:
  KeyPickerSheetAtScale() {
    host.activate();
    host.state.chooseLanguage(std::get<AppLanguage>(GetParam()));
    host.state.openKeyPicker(GamepadButton::buttonB);
    QTest::qWait(1);
  }

  int pixels(double points) const {
    return static_cast<int>(std::lround(points * std::get<double>(GetParam())));
  }

  QImage windowPicture() { return rendered(host.window, std::get<double>(GetParam())); }

  /// The lengths of the vertical runs of one colour, from the upper edge of `first` to the lower one of
  /// `last`, along their left borders.
  std::vector<int> runsBetween(const KeyButton* first, const KeyButton* last) {
    const QImage image = windowPicture();
    const QPoint start = first->mapTo(&host.window, QPoint(0, 0));
    const int x = pixels(start.x());
    const int end = pixels(last->mapTo(&host.window, QPoint(0, last->height())).y());
    std::vector<int> runs;
    for (int y = pixels(start.y()); y < end; y += runs.back())
      runs.push_back(runLength(image, {x, y}, {0, 1}));
    return runs;
  }

  PickerWindow host;
};

std::string nameOf(const testing::TestParamInfo<ScaleAndLanguage>& parameters) {
  const bool isEnglish = std::get<AppLanguage>(parameters.param) == AppLanguage::english;
  return (isEnglish ? "EnglishAt" : "ChineseAt") +
         std::to_string(static_cast<int>(std::get<double>(parameters.param) * 100));
}

INSTANTIATE_TEST_SUITE_P(KeyPickerSheet, KeyPickerSheetAtScale,
                         testing::Combine(allScales(),
                                          testing::Values(AppLanguage::english, AppLanguage::chinese)),
                         nameOf);

TEST_P(KeyPickerSheetAtScale, LeavesFourPointsBetweenTheRowsOfKeys) {
  const KeyGrid* grid = host.sheet->picker()->keyGrid();
  const auto rows = [&](int count) {
    std::vector<int> runs;
    for (int row = 0; row < count; ++row) {
      if (row > 0) runs.push_back(pixels(4));
      runs.push_back(pixels(32));
    }
    return runs;
  };
  EXPECT_EQ(runsBetween(grid->key(KeyboardKey::space), grid->key(KeyboardKey::tab)), rows(2));
  EXPECT_EQ(runsBetween(grid->key(KeyboardKey::a), grid->key(KeyboardKey::k)), rows(3));
  EXPECT_EQ(runsBetween(grid->key(KeyboardKey::n), grid->key(KeyboardKey::x)), rows(3));
  QScrollBar* bar = host.sheet->picker()->scrollArea()->verticalScrollBar();
  bar->setValue(bar->maximum());
  EXPECT_EQ(runsBetween(grid->key(KeyboardKey::num0), grid->key(KeyboardKey::num5)), rows(2));
  EXPECT_EQ(runsBetween(grid->key(KeyboardKey::f1), grid->key(KeyboardKey::f7)), rows(2));
}

TEST_P(KeyPickerSheetAtScale, DimsAllOfTheWindowAroundItByATenth) {
  const QImage dimmed = windowPicture();
  const QRect panel = host.sheet->picker()->geometry();
  host.sheet->hide();
  const QImage plain = windowPicture();
  const std::vector<QPoint> places = {{1, 1},
                                      panel.topLeft() - QPoint(1, 1),
                                      panel.topLeft() - QPoint(40, 40),
                                      panel.topLeft() - QPoint(41, 41),
                                      panel.topRight() + QPoint(39, -39),
                                      panel.bottomRight() + QPoint(39, 39),
                                      QPoint(899, 799)};
  for (const QPoint& place : places) {
    const QPoint at(pixels(place.x()), pixels(place.y()));
    EXPECT_TRUE(isNearly(dimmed.pixelColor(at), blended(Qt::black, 0.1, plain.pixelColor(at))))
        << place.x() << ", " << place.y();
  }
}

TEST_P(KeyPickerSheetAtScale, CastsAHardShadowTwelvePointsRightAndDown) {
  const QRect panel = host.sheet->picker()->geometry();
  host.list->hide();  // an even ground behind the shadow
  const QImage image = windowPicture();
  const QColor ground = image.pixelColor(pixels(panel.right() + 30), pixels(400));
  const QColor shadow = blended(Qt::black, 0.1, ground);
  const int right = pixels(panel.right() + 1);
  const int lower = pixels(panel.bottom() + 1);
  EXPECT_TRUE(isNearly(image.pixelColor(right, pixels(400)), shadow));
  EXPECT_EQ(runLength(image, {right, pixels(400)}, {1, 0}), pixels(panel.right() + 13) - right);
  EXPECT_EQ(runLength(image, {pixels(400), lower}, {0, 1}), pixels(panel.bottom() + 13) - lower);
  EXPECT_EQ(runLength(image, {right, pixels(400)}, {0, -1}), pixels(400) - pixels(panel.top() + 12) + 1);
  EXPECT_EQ(image.pixelColor(right, pixels(panel.top() + 12) - 1), ground);
}

}  // namespace
}  // namespace vantorel
