#include "HeaderPanel.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAccessible>
#include <QMenu>
#include <QTest>

#include "OpenWindow.h"
#include "Rendering.h"

namespace vantorel {
namespace {

class HeaderPanelTest : public testing::Test {
 protected:
  HeaderPanelTest() { host.activate(); }

  HeaderPanel& header() const {
    return *dynamic_cast<HeaderPanel*>(host.window->findChildren<LanguageMenu*>().front()->parentWidget());
  }
  LanguageMenu& languageMenu() const { return *host.window->findChildren<LanguageMenu*>().front(); }

  QMenu& menu() const { return *languageMenu().findChild<QMenu*>(); }

  QStringList checkedEntries() const {
    QStringList checked;
    for (const QAction* const entry : menu().actions()) {
      if (entry->isChecked()) checked += entry->text();
    }
    return checked;
  }

  void openMenu() {
    QTest::mouseClick(&languageMenu(), Qt::LeftButton);
    host.settle();
    ASSERT_TRUE(menu().isVisible());
  }

  OpenWindow host;
};

TEST_F(HeaderPanelTest, ShowsNameVersionAndHotKeyInEnglish) {
  EXPECT_EQ(OpenWindow::labels(header()), QStringList({"VANTOREL.EXE", "> STATUS: ONLINE | VERSION 1.0.4",
                                                       "GLOBAL_HOTKEY", "⌘ + ⇧ + M to toggle"}));
}

TEST_F(HeaderPanelTest, ShowsNameVersionAndHotKeyInChinese) {
  host.state.chooseLanguage(AppLanguage::chinese);
  host.settle();
  EXPECT_EQ(OpenWindow::labels(header()),
            QStringList({"万托雷.EXE", "> 状态: 在线 | 版本 1.0.4", "GLOBAL_HOTKEY", "⌘ + ⇧ + M 快速切换"}));
}

TEST_F(HeaderPanelTest, ExplainsTheCommandKeyInBothLanguages) {
  for (const AppLanguage language : allAppLanguages()) {
    host.state.chooseLanguage(language);
    host.settle();
    for (const QLabel* const label : header().findChildren<QLabel*>()) {
      if (label->text().contains("HOTKEY") || label->text().contains(u'⌘')) {
        EXPECT_TRUE(label->toolTip().contains("Super")) << label->text().toStdString();
      }
    }
  }
}

TEST_F(HeaderPanelTest, IsHeavierThanTheCards) {
  const QImage picture = rendered(header());
  const QRect plate = header().cardRect();
  EXPECT_EQ(plate.size(), header().size() - QSize(8, 8));
  EXPECT_EQ(runLength(picture, {0, plate.height() / 2}, {1, 0}), 4) << "the outline";
  EXPECT_EQ(header().contentLayout()->contentsMargins(), QMargins(20, 20, 28, 28))
      << "the padding and the shadow";
  const QColor shadow = blended(Qt::black, 0.08, AppTheme::background());
  EXPECT_TRUE(isNearly(picture.pixelColor(plate.right() + 8, plate.bottom() + 8), shadow));
  EXPECT_TRUE(isNearly(picture.pixelColor(plate.right() + 8, 7), AppTheme::background()));
  EXPECT_TRUE(isNearly(picture.pixelColor(7, plate.bottom() + 8), AppTheme::background()));
  EXPECT_TRUE(isNearly(picture.pixelColor(8, plate.bottom() + 1), shadow));
}

TEST_F(HeaderPanelTest, OffersTheLanguagesInTheirOrderAndMarksTheCurrentOne) {
  QStringList names;
  for (const QAction* const entry : menu().actions()) names += entry->text();
  EXPECT_EQ(names, QStringList({"English", "简体中文"}));
  EXPECT_EQ(checkedEntries(), QStringList("English"));
  host.state.chooseLanguage(AppLanguage::chinese);
  host.settle();
  EXPECT_EQ(checkedEntries(), QStringList("简体中文"));
}

TEST_F(HeaderPanelTest, ChoosesALanguageByMouse) {
  openMenu();
  QMenu& entries = menu();
  QTest::mouseClick(&entries, Qt::LeftButton, {}, entries.actionGeometry(entries.actions().at(1)).center());
  host.settle();
  EXPECT_EQ(host.state.localization.currentLanguage(), AppLanguage::chinese);
  EXPECT_TRUE(host.recorded("defaults AppLanguage string 中文"));
  EXPECT_TRUE(OpenWindow::labels(header()).contains("万托雷.EXE"));
  EXPECT_EQ(languageMenu().text(), "简体中文");
}

TEST_F(HeaderPanelTest, ChoosesALanguageByKeyboard) {
  languageMenu().setFocus();
  host.key(Qt::Key_Space);
  QMenu& entries = menu();
  ASSERT_TRUE(entries.isVisible());
  for (int presses = 0; presses < 5 && entries.activeAction() != entries.actions().at(1); ++presses) {
    QTest::keyClick(&entries, Qt::Key_Down);
  }
  QTest::keyClick(&entries, Qt::Key_Return);
  host.settle();
  EXPECT_EQ(host.state.localization.currentLanguage(), AppLanguage::chinese);
}

TEST_F(HeaderPanelTest, SavesTheCurrentLanguageAgainAndKeepsItsMark) {
  openMenu();
  QMenu& entries = menu();
  QTest::mouseClick(&entries, Qt::LeftButton, {}, entries.actionGeometry(entries.actions().at(0)).center());
  host.settle();
  EXPECT_EQ(host.timesRecorded("defaults AppLanguage string EN"), 1);
  EXPECT_EQ(checkedEntries(), QStringList("English"));
}

TEST_F(HeaderPanelTest, TellsAssistiveTechnologyTheLanguageInThatLanguage) {
  EXPECT_EQ(accessibleName(languageMenu()), "Language: English");
  host.state.chooseLanguage(AppLanguage::chinese);
  host.settle();
  EXPECT_EQ(accessibleName(languageMenu()), "语言: 简体中文");
}

TEST_F(HeaderPanelTest, ShowsAssistiveTechnologyTheLanguagesBelowTheButton) {
  const QAccessibleInterface* const button = QAccessible::queryAccessibleInterface(&languageMenu());
  EXPECT_EQ(button->role(), QAccessible::ButtonMenu);
  EXPECT_TRUE(button->state().hasPopup);
  ASSERT_EQ(button->childCount(), 1);
  EXPECT_EQ(button->child(1), nullptr);
  const QAccessibleInterface* const entries = button->child(0);
  EXPECT_EQ(button->indexOfChild(entries), 0);
  EXPECT_EQ(button->indexOfChild(button), -1);
  EXPECT_EQ(entries->text(QAccessible::Name), "Language");
  ASSERT_EQ(entries->childCount(), 2);
  EXPECT_EQ(entries->child(1)->text(QAccessible::Name), "简体中文");
}

TEST_F(HeaderPanelTest, LetsAssistiveTechnologyOpenTheMenuAndChoose) {
  QAccessibleInterface* const button = QAccessible::queryAccessibleInterface(&languageMenu());
  button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  host.settle();
  ASSERT_TRUE(menu().isVisible());
  button->child(0)->child(1)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  host.settle();
  EXPECT_FALSE(menu().isVisible());
  EXPECT_EQ(host.state.localization.currentLanguage(), AppLanguage::chinese);
}

TEST_F(HeaderPanelTest, StaysWhereItIsWhenTheLanguageChanges) {
  const QRect place = header().geometry();
  const QRect button = languageMenu().geometry();
  host.state.chooseLanguage(AppLanguage::chinese);
  host.settle();
  EXPECT_EQ(header().geometry(), place);
  EXPECT_EQ(languageMenu().geometry(), button);
}

}  // namespace
}  // namespace vantorel
