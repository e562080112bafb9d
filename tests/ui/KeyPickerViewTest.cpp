#include "KeyPickerView.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTest>
#include <cmath>
#include <cstddef>
#include <optional>
#include <vector>

#include "AppTheme.h"
#include "CloseButton.h"
#include "KeyButton.h"
#include "KeyGrid.h"
#include "KeySections.h"
#include "Rendering.h"
#include "RetroScrollArea.h"
#include "TextLine.h"

namespace vantorel {
namespace {

constexpr int barHeight = 16 + 18 + 16;

/// A picker that is shown, and what it reported.
class Picker {
 public:
  explicit Picker(GamepadButton button = GamepadButton::buttonB,
                  std::optional<KeyboardKey> current = KeyboardKey::escape,
                  AppLanguage language = AppLanguage::english)
      : view(
            button, current, [this](KeyboardKey key) { chosen.push_back(key); }, [this] { ++dismissals; }) {
    view.showLanguage(language);
    view.show();
  }

  KeyButton* key(KeyboardKey wanted) const { return view.keyGrid()->key(wanted); }

  /// Where `key` is on the panel.
  QRect place(KeyboardKey wanted) const { return placeOf(key(wanted)); }
  QRect placeOf(const QWidget* part) const { return {part->mapTo(&view, QPoint(0, 0)), part->size()}; }

  std::vector<KeyboardKey> highlighted() const {
    std::vector<KeyboardKey> keys;
    for (KeyButton* button : view.keyGrid()->keys()) {
      if (rendered(*button).pixelColor(6, 6) == AppTheme::secondaryAccent()) keys.push_back(button->key());
    }
    return keys;
  }

  std::vector<KeyboardKey> chosen;
  int dismissals = 0;
  KeyPickerView view;
};

TEST(KeyPickerView, HighlightsThePresentKeyAlone) {
  EXPECT_THAT(Picker().highlighted(), testing::ElementsAre(KeyboardKey::escape));
}

TEST(KeyPickerView, HighlightsNoKeyForAnUnmappedButton) {
  EXPECT_THAT(Picker(GamepadButton::menu, std::nullopt).highlighted(), testing::IsEmpty());
}

TEST(KeyPickerView, NamesTheEditedButtonInItsTitle) {
  Picker picker(GamepadButton::leftShoulder, std::nullopt);
  EXPECT_EQ(picker.view.titleLine()->text(), QStringLiteral("SELECT_KEY::L1 (LB)"));
  picker.view.showLanguage(AppLanguage::chinese);
  EXPECT_EQ(picker.view.titleLine()->text(), QStringLiteral("选择按键::左肩键 (L1)"));
}

TEST(KeyPickerView, ShowsHeadingsAndKeysInBothLanguages) {
  Picker picker;
  const auto headings = [&] {
    std::vector<std::string> texts;
    for (const TextLine* line : picker.view.keyGrid()->headings())
      texts.push_back(line->text().toStdString());
    return texts;
  };
  EXPECT_THAT(headings(), testing::ElementsAre("> ACTION", "> DPAD", "> ALPHA_1", "> ALPHA_2", "> NUMERIC",
                                               "> FUNCTION"));
  EXPECT_EQ(picker.key(KeyboardKey::tab)->text(), QStringLiteral("TAB"));
  picker.view.showLanguage(AppLanguage::chinese);
  EXPECT_THAT(headings(),
              testing::ElementsAre("> 动作", "> 方向键", "> 字母_1", "> 字母_2", "> 数字", "> 功能键"));
  EXPECT_EQ(picker.key(KeyboardKey::tab)->text(), QStringLiteral("Tab"));
  EXPECT_EQ(picker.key(KeyboardKey::space)->text(), QStringLiteral("空格"));
  EXPECT_EQ(picker.key(KeyboardKey::leftArrow)->text(), QStringLiteral("←"));
}

TEST(KeyPickerView, ReportsEachKeyThatIsClicked) {
  Picker picker;
  std::vector<KeyboardKey> clicked;
  for (KeyButton* button : picker.view.keyGrid()->keys()) {
    QTest::mouseClick(button, Qt::LeftButton);
    clicked.push_back(button->key());
  }
  EXPECT_EQ(picker.chosen, clicked);
  EXPECT_EQ(clicked.size(), keyboardKeyCount);
  EXPECT_EQ(picker.dismissals, 0);
}

TEST(KeyPickerView, IsDismissedByItsCloseButton) {
  Picker picker;
  QTest::mouseClick(picker.view.closeButton(), Qt::LeftButton);
  EXPECT_EQ(picker.dismissals, 1);
  QTest::keyClick(picker.view.closeButton(), Qt::Key_Return);
  QTest::keyClick(picker.view.closeButton(), Qt::Key_Space);
  EXPECT_EQ(picker.dismissals, 3);
  EXPECT_THAT(picker.chosen, testing::IsEmpty());
}

TEST(KeyPickerView, IsNotDismissedAgainWhileTheReturnKeyIsHeld) {
  Picker picker;
  QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"), true);
  QApplication::sendEvent(picker.view.closeButton(), &repeated);
  EXPECT_EQ(picker.dismissals, 0);
}

TEST(KeyPickerView, IsReadAsADialogWithItsTitle) {
  Picker picker;
  QAccessibleInterface* dialog = QAccessible::queryAccessibleInterface(&picker.view);
  EXPECT_EQ(dialog->role(), QAccessible::Dialog);
  EXPECT_EQ(dialog->text(QAccessible::Name), QStringLiteral("SELECT_KEY::B"));
  QAccessibleInterface* closer = QAccessible::queryAccessibleInterface(picker.view.closeButton());
  EXPECT_EQ(closer->role(), QAccessible::Button);
  EXPECT_EQ(closer->text(QAccessible::Name), QStringLiteral("Close"));
  picker.view.showLanguage(AppLanguage::chinese);
  EXPECT_EQ(dialog->text(QAccessible::Name), QStringLiteral("选择按键::B"));
  EXPECT_EQ(closer->text(QAccessible::Name), QStringLiteral("关闭"));
}

class KeyPickerViewIn : public testing::TestWithParam<AppLanguage> {};

INSTANTIATE_TEST_SUITE_P(KeyPickerView, KeyPickerViewIn,
                         testing::Values(AppLanguage::english, AppLanguage::chinese),
                         [](const testing::TestParamInfo<AppLanguage>& language) {
                           return language.param == AppLanguage::english ? "English" : "Chinese";
                         });

TEST_P(KeyPickerViewIn, StacksItsSectionsAtTheGivenDistances) {
  const Picker picker(GamepadButton::buttonB, KeyboardKey::escape, GetParam());
  int top = barHeight + 24;
  for (std::size_t number = 0; number < keySections().size(); ++number) {
    const KeySection& section = keySections()[number];
    EXPECT_EQ(picker.placeOf(picker.view.keyGrid()->headings()[number]).topLeft(), QPoint(24, top)) << number;
    top += 16 + 8;
    for (std::size_t index = 0; index < section.keys.size(); ++index) {
      const auto row = static_cast<int>(index) / section.keysPerRow;
      EXPECT_EQ(picker.place(section.keys[index]).top(), top + row * (32 + 4)) << number;
      EXPECT_EQ(picker.place(section.keys[index]).height(), 32);
    }
    top += rowCount(section) * (32 + 4) - 4 + 24;
  }
  EXPECT_EQ(picker.view.keyGrid()->height(), top - 24 - barHeight + 20)
      << "with the border below, 24 points remain under the last row";
}

TEST_P(KeyPickerViewIn, StretchesKeysOverTheRowAndLeavesAShortRowShort) {
  const Picker picker(GamepadButton::buttonB, KeyboardKey::escape, GetParam());
  for (const KeySection& section : keySections()) {
    const double share = (500 - 24 - 24 - 4.0 * (section.keysPerRow - 1)) / section.keysPerRow;
    for (std::size_t index = 0; index < section.keys.size(); ++index) {
      const QRect place = picker.place(section.keys[index]);
      const auto column = static_cast<int>(index) % section.keysPerRow;
      EXPECT_NEAR(place.width(), share, 1) << section.englishTitle << index;
      EXPECT_NEAR(place.left(), 24 + column * (share + 4), 1) << section.englishTitle << index;
      if (column == section.keysPerRow - 1) {
        EXPECT_EQ(place.right() + 1, 500 - 24);
      }
      if (column > 0) {
        EXPECT_EQ(place.left() - picker.place(section.keys[index - 1]).right() - 1, 4);
      }
    }
  }
}

TEST_P(KeyPickerViewIn, HasRoomForEveryName) {
  const Picker picker(GamepadButton::rightThumbstick, KeyboardKey::escape, GetParam());
  for (const KeyButton* key : picker.view.keyGrid()->keys()) {
    EXPECT_GE(key->width(), key->sizeHint().width()) << key->text().toStdString();
  }
  EXPECT_GE(picker.view.titleLine()->width(), picker.view.titleLine()->sizeHint().width());
}

class KeyPickerViewAtScale : public testing::TestWithParam<double> {
 protected:
  int pixels(double points) const { return static_cast<int>(std::lround(points * GetParam())); }
};

INSTANTIATE_TEST_SUITE_P(KeyPickerView, KeyPickerViewAtScale, allScales(), scaleName);

TEST_P(KeyPickerViewAtScale, IsAPanelOf500By600WithABorderOfFourPoints) {
  Picker picker;
  ASSERT_EQ(picker.view.size(), QSize(500, 600));
  const QImage image = rendered(picker.view, GetParam());
  const int border = pixels(4);
  const int y = pixels(barHeight + 12);  // above the first heading
  const QPoint lower(pixels(12), image.height() - 1);
  EXPECT_EQ(runLength(image, {0, y}, {1, 0}), border);
  EXPECT_EQ(image.pixelColor(0, y), AppTheme::borderColor());
  EXPECT_EQ(runLength(image, {image.width() - 1, pixels(8)}, {0, 1}), image.height() - pixels(8));
  EXPECT_EQ(runLength(image, lower, {0, -1}), border);
  EXPECT_EQ(image.pixelColor(pixels(12), pixels(barHeight + 12)), AppTheme::cardBackground());
}

TEST_P(KeyPickerViewAtScale, HasABlackTitleBarWithAWhiteTitleAndARedCloseButton) {
  Picker picker;
  const QImage image = rendered(picker.view, GetParam());
  EXPECT_EQ(runLength(image, {pixels(12), 0}, {0, 1}), pixels(barHeight));
  const QImage bar = image.copy(0, 0, image.width(), pixels(barHeight));
  EXPECT_GT(countOf(bar, Qt::white), 0);
  EXPECT_GT(countOf(bar.copy(bar.width() * 3 / 4, 0, bar.width() / 4, bar.height()), AppTheme::accent()), 0);
  for (const int side : {pixels(15), image.width() - pixels(15)}) {
    EXPECT_EQ(runLength(bar, {side, 0}, {0, 1}), bar.height()) << "sixteen points are empty at " << side;
  }
}

}  // namespace
}  // namespace vantorel
