#include "ContentView.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QTest>
#include <set>

#include "KeyPickerSheet.h"
#include "MappingRow.h"
#include "NothingClipped.h"
#include "OpenWindow.h"
#include "RetroSlider.h"
#include "Typography.h"

namespace vantorel {
namespace {

using testing::ElementsAre;

/// Counts what is painted while it lives.
class PaintCounter : public QObject {
 public:
  PaintCounter() { qApp->installEventFilter(this); }
  ~PaintCounter() override { qApp->removeEventFilter(this); }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) painted.insert(watched);
    return false;
  }

  std::set<QObject*> painted;
};

struct Layout {
  int width;
  AppLanguage language;
};

std::string nameOfLayout(const testing::TestParamInfo<Layout>& layout) {
  return std::to_string(layout.param.width) +
         (layout.param.language == AppLanguage::chinese ? "Chinese" : "English");
}

/// The window at the widths and in the languages that matter.
class ContentViewLayoutTest : public testing::TestWithParam<Layout> {
 protected:
  ContentViewLayoutTest() {
    host.state.chooseLanguage(GetParam().language);
    host.resizeContent(GetParam().width, 800);
  }

  void openEverything() {
    host.platform.accessibility.setGranted(false);
    host.state.refreshSystem();
    host.state.setJoystickEnabled(true);
    host.state.setMenuBarMode(true);
    host.settle();
  }

  void expectOneRow() {
    const QRect first = host.panel(0).geometry();
    for (std::size_t index = 1; index < 7; ++index) {
      const QRect panel = host.panel(index).geometry();
      EXPECT_EQ(panel.top(), first.top()) << index;
      EXPECT_EQ(panel.height(), first.height()) << index;
      EXPECT_LE(std::abs(panel.width() - first.width()), 1) << index;
      EXPECT_GT(panel.left(), host.panel(index - 1).geometry().right()) << index;
    }
  }

  void expectNothingClippedAnywhere() {
    expectNothingClipped(*host.content().scrollArea()->widget());
    expectOneRow();
  }

  std::vector<QRect> places() {
    std::vector<QRect> rectangles;
    for (const Panel* const panel : host.content().panels()) rectangles.push_back(panel->geometry());
    return rectangles;
  }

  OpenWindow host;
};

TEST_P(ContentViewLayoutTest, FillsTheWidthThatItGets) {
  EXPECT_EQ(host.content().width(), GetParam().width);
  const QWidget& page = *host.content().scrollArea()->widget();
  EXPECT_EQ(page.width(), host.content().scrollArea()->viewport()->width()) << "nothing lies beside the page";
}

TEST_P(ContentViewLayoutTest, HasRoomForEverythingAtTheStart) { expectNothingClippedAnywhere(); }

TEST_P(ContentViewLayoutTest, HasRoomForEverythingWithAllSectionsOpen) {
  openEverything();
  expectNothingClippedAnywhere();
}

TEST_P(ContentViewLayoutTest, HasRoomForTheLongestNames) {
  const std::string name = "Controller_" + std::string(90, 'W') + " 无线游戏手柄无线游戏手柄 (Bluetooth)";
  host.plug(name, "A_Category_Of_An_Unusual_Length_" + std::string(60, 'M'));
  expectNothingClippedAnywhere();
  EXPECT_TRUE(host.shows(QString::fromStdString(name))) << "in full";
}

TEST_P(ContentViewLayoutTest, KeepsItsPanelsInPlaceWhenTheirTextsChange) {
  const std::vector<QRect> before = places();
  const int page = host.content().scrollArea()->widget()->height();
  const auto pad = host.plug("Nintendo Co., Ltd. Pro Controller Wireless Gamepad, Second Edition (USB)",
                             "Switch Pro Controller");
  EXPECT_EQ(places(), before) << "a controller with a long name";
  host.state.setEnabled(true);
  host.state.mappingStore.update(GamepadButton::dpadRight, KeyboardKey::rightArrow);
  for (const GamepadButton button : allGamepadButtons()) {
    host.press(*pad, button);
    ASSERT_EQ(places(), before) << "a press of " << rawValue(button);
  }
  host.platform.accessibility.setGranted(false);
  host.state.refreshSystem();
  host.settle();
  EXPECT_EQ(places(), before) << "the permission is gone";
  host.platform.gameControllers.unplug(pad);
  host.settle();
  EXPECT_EQ(places(), before) << "the controller is gone";
  EXPECT_EQ(host.content().scrollArea()->widget()->height(), page);
}

TEST_P(ContentViewLayoutTest, KeepsItsPanelsInPlaceWhenTheLanguageChanges) {
  for (const bool isOpen : {false, true}) {
    if (isOpen) openEverything();
    const std::vector<QRect> before = places();
    const int page = host.content().scrollArea()->widget()->height();
    for (const AppLanguage language : allAppLanguages()) {
      host.state.chooseLanguage(language);
      host.settle();
      EXPECT_EQ(places(), before);
      EXPECT_EQ(host.content().scrollArea()->widget()->height(), page);
    }
  }
}

TEST_P(ContentViewLayoutTest, KeepsItsHeightForTheLongestNameInWords) {
  const int height = host.content().scrollArea()->widget()->height();
  host.plug(
      "Extraordinary Entertainment Corporation Professional Wireless Gaming Controller for Computers and "
      "Consoles, Second Generation 2",
      "Gamepad");
  expectNothingClippedAnywhere();
  EXPECT_EQ(host.content().scrollArea()->widget()->height(), height);
}

TEST_P(ContentViewLayoutTest, KeepsWhatStandsInAPanelInPlaceWhenItsTextsChange) {
  const auto lines = [this](std::size_t index) {
    std::vector<QPoint> corners;
    for (const QLabel* const label : host.panel(index).findChildren<QLabel*>())
      corners.push_back(label->pos());
    return corners;
  };
  const auto connection = lines(0);
  const auto details = lines(5);
  const auto pad = host.plug("Sony Interactive Entertainment Wireless Controller", "DualSense");
  host.state.setEnabled(true);
  host.press(*pad, GamepadButton::dpadLeft);
  EXPECT_EQ(lines(0), connection);
  EXPECT_EQ(lines(5), details);
}

INSTANTIATE_TEST_SUITE_P(
    Widths, ContentViewLayoutTest,
    testing::Values(Layout{1000, AppLanguage::english}, Layout{1000, AppLanguage::chinese},
                    Layout{1100, AppLanguage::english}, Layout{1100, AppLanguage::chinese},
                    Layout{1400, AppLanguage::english}, Layout{1400, AppLanguage::chinese},
                    Layout{1920, AppLanguage::english}),
    nameOfLayout);

class ContentViewTest : public testing::Test {
 protected:
  ContentViewTest() { host.activate(); }

  /// The names of all controls in the order in which the Tab key reaches them.
  std::vector<std::string> tabOrder() {
    std::vector<std::string> names;
    host.key(Qt::Key_Tab);
    QWidget* const first = host.window->focusWidget();
    QWidget* current = first;
    do {
      names.push_back(accessibleName(*current).toStdString());
      host.key(Qt::Key_Tab);
      current = host.window->focusWidget();
    } while (current != first && names.size() < 100);
    return names;
  }

  QScrollBar& scrollBar() { return *host.content().scrollArea()->verticalScrollBar(); }

  OpenWindow host;
};

TEST_F(ContentViewTest, HasItsLeastAndIdealSizes) {
  EXPECT_EQ(host.content().minimumSize(), QSize(1000, 800));
  EXPECT_EQ(host.content().sizeHint(), QSize(1100, 800));
  EXPECT_EQ(host.content().maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
}

TEST_F(ContentViewTest, SetsTheFontAndTheColourOfTextThatAsksForNone) {
  EXPECT_EQ(host.content().font(), monospaced());
  EXPECT_EQ(host.content().palette().color(QPalette::WindowText), AppTheme::text());
}

TEST_F(ContentViewTest, OpensAsItIsAtAFirstStart) {
  EXPECT_EQ(host.state.localization.currentLanguage(), AppLanguage::english);
  EXPECT_TRUE(host.shows("B: ESC"));
  EXPECT_FALSE(host.control<QAbstractButton>("ACTIVE_MAPPING")->isChecked());
  EXPECT_FALSE(host.control<QAbstractButton>("JOYSTICK_CONTROL")->isChecked());
  EXPECT_FALSE(host.control<QAbstractButton>("MENU_BAR_MODE")->isChecked());
}

TEST_F(ContentViewTest, PutsTheDotGridBehindAllOfIt) {
  EXPECT_EQ(host.content().children().front()->property("geometry").toRect(), host.content().rect());
  const QImage picture = host.content().grab().toImage();
  EXPECT_LT(picture.pixelColor(1, 1).lightness(), AppTheme::background().lightness()) << "a dot";
  EXPECT_EQ(picture.pixelColor(5, 5), AppTheme::background());
}

TEST_F(ContentViewTest, ScrollsWhenTheWindowIsLowerThanThePage) {
  host.resizeContent(1000, 800);
  EXPECT_GT(scrollBar().maximum(), 0);
  const int panelRow = host.panel(0).y();
  host.resizeContent(1000, 2000);
  EXPECT_EQ(scrollBar().maximum(), 0);
  EXPECT_EQ(host.panel(0).y(), panelRow) << "the room below the page grew, not the header";
}

TEST_F(ContentViewTest, ScrollsByKeyboardWhileNoControlHasIt) {
  host.key(Qt::Key_PageDown);
  EXPECT_GT(scrollBar().value(), 0);
}

TEST_F(ContentViewTest, KeepsItsScrollPositionWhenTheLanguageChanges) {
  scrollBar().setValue(300);
  host.state.chooseLanguage(AppLanguage::chinese);
  host.settle();
  EXPECT_EQ(scrollBar().value(), 300);
  host.state.chooseLanguage(AppLanguage::english);
  host.settle();
  EXPECT_EQ(scrollBar().value(), 300);
}

TEST_F(ContentViewTest, KeepsAnOpenPickerWhenTheLanguageChanges) {
  host.click("B: ESC");
  ASSERT_TRUE(host.shows("DELETE"));
  host.state.chooseLanguage(AppLanguage::chinese);
  host.settle();
  EXPECT_EQ(host.state.selectedGamepadButton.get(), GamepadButton::buttonB);
  EXPECT_TRUE(host.shows("删除"));
}

TEST_F(ContentViewTest, ReachesEveryControlInReadingOrder) {
  const std::vector<std::string> expected{"Language: English", "ACTIVE_MAPPING",   "REFRESH_SYSTEM",
                                          "JOYSTICK_CONTROL",  "MENU_BAR_MODE",    "START_PROBE",
                                          "DOWNLOAD_DRIVER",   "A: SPACE",         "B: ESC",
                                          "X: ENTER",          "Y: TAB",           "L1 (LB): ---",
                                          "R1 (RB): ---",      "L2 (LT): ---",     "R2 (RT): ---",
                                          "LEFT_STICK: ---",   "RIGHT_STICK: ---", "D-PAD_UP: UP",
                                          "D-PAD_DOWN: DOWN",  "D-PAD_LEFT: LEFT", "D-PAD_RIGHT: RIGHT",
                                          "MENU: ---",         "OPTIONS: ---",     "Debug log"};
  EXPECT_EQ(tabOrder(), expected);
}

TEST_F(ContentViewTest, ReachesWhatShowsOnlyAtTimes) {
  host.platform.accessibility.setGranted(false);
  host.state.refreshSystem();
  host.state.setJoystickEnabled(true);
  host.settle();
  const std::vector<std::string> order = tabOrder();
  const std::vector<std::string> start(order.begin(), order.begin() + 8);
  EXPECT_THAT(start, ElementsAre("Language: English", "FIX", "ACTIVE_MAPPING", "REFRESH_SYSTEM",
                                 "JOYSTICK_CONTROL", "MOUSE", "SCROLL", "DEADZONE"));
}

TEST_F(ContentViewTest, ScrollsToTheControlThatHasTheKeyboard) {
  tabOrder();
  for (int presses = 0; presses < 23; ++presses) host.key(Qt::Key_Tab);
  EXPECT_GT(scrollBar().value(), 0);
}

TEST_F(ContentViewTest, DrawsAFrameAroundTheControlThatHasTheKeyboard) {
  for (const char* const name : {"Language: English", "ACTIVE_MAPPING", "REFRESH_SYSTEM", "A: SPACE"}) {
    QWidget* const control = host.control(name);
    host.content().setFocus();
    const QImage without = control->grab().toImage();
    control->setFocus();
    EXPECT_NE(control->grab().toImage(), without) << name;
  }
}

TEST_F(ContentViewTest, NamesEveryControlAndExplainsEveryTagAndSwitchInBothLanguages) {
  host.state.setJoystickEnabled(true);
  for (const AppLanguage language : allAppLanguages()) {
    host.state.chooseLanguage(language);
    host.settle();
    for (QWidget* const widget : host.content().findChildren<QWidget*>()) {
      if (!widget->isVisible()) continue;
      if ((widget->focusPolicy() & Qt::TabFocus) != 0) {
        EXPECT_FALSE(accessibleName(*widget).isEmpty()) << describe(*widget);
        EXPECT_NE(QAccessible::queryAccessibleInterface(widget)->role(), QAccessible::NoRole);
      }
      const bool isTag = dynamic_cast<SectionTag*>(widget) != nullptr;
      if (isTag || qobject_cast<QCheckBox*>(widget) != nullptr) {
        EXPECT_FALSE(widget->toolTip().isEmpty()) << describe(*widget);
        const bool isChinese = !widget->toolTip().isEmpty() && widget->toolTip().endsWith("。");
        EXPECT_EQ(isChinese, language == AppLanguage::chinese) << widget->toolTip().toStdString();
      }
    }
  }
}

TEST_F(ContentViewTest, PaintsNothingForTicksOfTheThumbstickMouse) {
  const auto pad = host.plug("Pad", "Gamepad");
  host.click("JOYSTICK_CONTROL");
  host.settle();
  const PaintCounter counter;
  pad->moveLeftThumbstick({0.5F, 0.5F});
  pad->moveRightThumbstick({0, 1});
  host.platform.time.advance(std::chrono::milliseconds(500));
  QApplication::processEvents();
  EXPECT_TRUE(host.transcript.back().find("scroll") != std::string::npos) << "it did tick";
  EXPECT_EQ(counter.painted.size(), 0U);
}

TEST_F(ContentViewTest, PaintsOnlyWhatAPressChanges) {
  const auto pad = host.plug("Pad", "Gamepad");
  host.press(*pad, GamepadButton::buttonB);
  const PaintCounter counter;
  host.press(*pad, GamepadButton::buttonX);
  for (QObject* const object : counter.painted) {
    EXPECT_EQ(dynamic_cast<RetroSlider*>(object), nullptr);
    EXPECT_EQ(qobject_cast<QPushButton*>(object), nullptr);
    EXPECT_EQ(qobject_cast<QCheckBox*>(object), nullptr);
  }
  EXPECT_FALSE(counter.painted.empty());
}

}  // namespace
}  // namespace vantorel
