#include "MainWindow.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QMenuBar>
#include <QTest>

#include "KeyPickerSheet.h"
#include "OpenWindow.h"

namespace vantorel {
namespace {

using testing::ElementsAre;

const Remedy remedy{{"No way to send keys.", "Keys have to be sent.", "Start an X11 session."},
                    {"无法发送按键。", "需要发送按键。", "请启动 X11 会话。"}};

class MainWindowTest : public testing::Test {
 protected:
  MainWindowTest() { host.activate(); }

  QMenu& fileMenu() const { return *host.window->menuBar()->actions().front()->menu(); }

  QStringList entries() const {
    QStringList texts;
    for (const QAction* const entry : fileMenu().actions()) texts += entry->text();
    return texts;
  }

  OpenWindow host;
};

TEST_F(MainWindowTest, HasItsNameAndASizeForItsContent) {
  EXPECT_EQ(host.window->windowTitle(), "Vantorel");
  EXPECT_GE(host.window->width(), 1100);
  EXPECT_GE(host.content().height(), 800);
  host.window->resize(100, 100);
  host.settle();
  EXPECT_EQ(host.content().size(), QSize(1000, 800));
}

TEST_F(MainWindowTest, FitsOnAScreenThatIsLowerThanItsContent) {
  MainWindow window(host.state, {[] {}, [] {}, [] {}});
  window.fitInto({1024, 700});
  window.show();
  host.settle();
  EXPECT_LE(window.height(), 700 - 32) << "the title bar has room as well";
  EXPECT_EQ(window.width(), 1024);
  EXPECT_GT(window.contentView()->scrollArea()->verticalScrollBar()->maximum(), 0);
}

TEST_F(MainWindowTest, HasItsIdealSizeOnALargeScreen) {
  MainWindow window(host.state, {[] {}, [] {}, [] {}});
  window.fitInto({1920, 1080});
  window.show();
  host.settle();
  EXPECT_EQ(window.contentView()->size(), QSize(1100, 800));
  EXPECT_EQ(window.contentView()->minimumSize(), QSize(1000, 800));
}

TEST_F(MainWindowTest, AsksTheProgramForWhatItsKeysStandFor) {
  host.key(Qt::Key_N, Qt::ControlModifier);
  EXPECT_THAT(host.requests, ElementsAre("new window"));
  host.key(Qt::Key_Q, Qt::ControlModifier);
  EXPECT_THAT(host.requests, ElementsAre("new window", "quit"));
  host.key(Qt::Key_W, Qt::ControlModifier);
  EXPECT_THAT(host.requests, ElementsAre("new window", "quit", "closed"));
}

TEST_F(MainWindowTest, LaysTheKeyPickerOverItsMenuBarToo) {
  host.state.openKeyPicker(GamepadButton::buttonB);
  host.settle();
  const auto* const sheet = host.window->findChild<KeyPickerSheet*>();
  ASSERT_NE(sheet, nullptr);
  EXPECT_TRUE(sheet->isVisible());
  EXPECT_EQ(sheet->geometry(), host.window->rect());
  EXPECT_EQ(host.window->childAt(host.window->menuBar()->geometry().center()), sheet);
}

TEST_F(MainWindowTest, HidesWhenItIsClosedAndCanBeShownAgain) {
  host.window->close();
  EXPECT_FALSE(host.window->isVisible());
  EXPECT_THAT(host.requests, ElementsAre("closed"));
  host.window->show();
  host.settle();
  EXPECT_TRUE(host.shows("ACTIVE_MAPPING"));
}

TEST_F(MainWindowTest, OffersTheSameInAMenu) {
  EXPECT_EQ(entries(), QStringList({"&New Window", "&Close Window", "", "&Quit"}));
  fileMenu().actions().front()->trigger();
  fileMenu().actions().back()->trigger();
  EXPECT_THAT(host.requests, ElementsAre("new window", "quit"));
}

TEST_F(MainWindowTest, OpensItsMenuByKeyboard) {
  host.key(Qt::Key_F10);
  ASSERT_TRUE(fileMenu().isVisible());
  QTest::keyClick(&fileMenu(), Qt::Key_Down);
  QTest::keyClick(&fileMenu(), Qt::Key_Return);
  EXPECT_THAT(host.requests, ElementsAre("closed"));
}

TEST_F(MainWindowTest, OpensItsMenuByItsLetter) {
  host.key(Qt::Key_F, Qt::AltModifier);
  EXPECT_TRUE(fileMenu().isVisible());
  QTest::keyClick(&fileMenu(), Qt::Key_Escape);
  EXPECT_FALSE(fileMenu().isVisible());
}

TEST_F(MainWindowTest, TranslatesItsMenu) {
  host.state.chooseLanguage(AppLanguage::chinese);
  host.settle();
  EXPECT_EQ(fileMenu().title(), "文件(&F)");
  EXPECT_EQ(entries(), QStringList({"新建窗口(&N)", "关闭窗口(&C)", "", "退出(&Q)"}));
}

TEST_F(MainWindowTest, ShowsARemedyInPlaceOfItsContent) {
  host.window->showRemedy(remedy);
  host.settle();
  EXPECT_FALSE(host.content().isVisible());
  for (const char* const text : {"No way to send keys.", "Keys have to be sent.", "Start an X11 session."}) {
    EXPECT_TRUE(host.shows(text)) << text;
  }
  EXPECT_EQ(accessibleName(*host.window->focusWidget()), "BACK");
}

TEST_F(MainWindowTest, TranslatesARemedyWhileItShows) {
  host.window->showRemedy(remedy);
  host.state.chooseLanguage(AppLanguage::chinese);
  host.settle();
  for (const char* const text : {"无法发送按键。", "需要发送按键。", "请启动 X11 会话。", "返回"}) {
    EXPECT_TRUE(host.shows(text)) << text;
  }
}

TEST_F(MainWindowTest, LeavesARemedyByButtonAndByEscape) {
  host.window->showRemedy(remedy);
  host.settle();
  host.click("BACK");
  EXPECT_TRUE(host.content().isVisible());
  host.window->showRemedy(remedy);
  host.settle();
  host.key(Qt::Key_Escape);
  EXPECT_TRUE(host.content().isVisible());
}

TEST_F(MainWindowTest, ReturnsFromARemedyToTheSamePlace) {
  QScrollBar& bar = *host.content().scrollArea()->verticalScrollBar();
  bar.setValue(200);
  host.window->showRemedy(remedy);
  host.settle();
  host.click("BACK");
  EXPECT_EQ(bar.value(), 200);
}

TEST_F(MainWindowTest, DoesNotRegisterTheHotKeyByItself) {
  EXPECT_EQ(host.timesRecorded("hotkey register VTKY 1 46 768 -> 0"), 1) << "who opens the window does";
}

}  // namespace
}  // namespace vantorel
