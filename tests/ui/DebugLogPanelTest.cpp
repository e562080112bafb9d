#include "DebugLogPanel.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QScrollBar>
#include <QTest>
#include <algorithm>
#include <utility>

#include "OpenWindow.h"

namespace vantorel {
namespace {

class DebugLogPanelTest : public testing::Test {
 protected:
  QPlainTextEdit& log() const { return *host.window->findChild<QPlainTextEdit*>(); }
  QStringList lines() { return log().toPlainText().split(u'\n'); }

  QStringList published() const {
    QStringList texts;
    for (const std::string& line : host.state.controllerManager.debugLogs.get()) {
      texts += QString::fromStdString(line);
    }
    return texts;
  }

  void writeLines(int count) {
    for (int line = 0; line < count; ++line) {
      host.platform.time.advance(std::chrono::seconds(1));
      host.state.refreshSystem();
      host.settle();
    }
  }

  OpenWindow host;
};

TEST_F(DebugLogPanelTest, ShowsTheLogNewestFirst) {
  EXPECT_EQ(lines(), published());
  EXPECT_TRUE(lines().last().endsWith("🚀 应用启动"));
}

TEST_F(DebugLogPanelTest, FollowsTheLogLineByLine) {
  for (int line = 0; line < 30; ++line) {
    writeLines(1);
    ASSERT_EQ(lines(), published());
  }
  EXPECT_EQ(lines().size(), 20);
}

TEST_F(DebugLogPanelTest, FollowsALogThatWasReplacedAsAWhole) {
  for (int line = 0; line < 25; ++line) host.state.refreshSystem();
  host.settle();
  EXPECT_EQ(lines(), published());
  host.state.controllerManager.debugLogs = std::vector<std::string>{};
  host.settle();
  EXPECT_EQ(log().toPlainText(), "");
}

TEST_F(DebugLogPanelTest, NeitherGrowsNorScrollsWhenItIsFull) {
  const QRect place = log().parentWidget()->geometry();
  writeLines(30);
  EXPECT_EQ(log().parentWidget()->geometry(), place);
  EXPECT_EQ(log().verticalScrollBar()->maximum(), 0);
}

/// Looks whether the log is there when a window is painted for the first time.
class FirstPaint : public QObject {
 public:
  bool hasCome = false;
  bool hasLog = false;

  bool eventFilter(QObject* window, QEvent* event) override {
    if (event->type() == QEvent::Paint && !std::exchange(hasCome, true))
      hasLog = window->findChild<QPlainTextEdit*>() != nullptr;
    return false;
  }
};

TEST_F(DebugLogPanelTest, MakesTheLogAfterTheFirstFrameAndMovesNothing) {
  FirstPaint first;
  MainWindow window(host.state, {[] {}, [] {}, [] {}});
  window.installEventFilter(&first);
  window.show();
  const auto labels = window.findChildren<QLabel*>();
  const auto tag = std::find_if(labels.begin(), labels.end(),
                                [](const QLabel* label) { return label->text() == "DEBUG_LOG"; });
  ASSERT_NE(tag, labels.end());
  const QWidget& panel = *(*tag)->parentWidget();
  const QRect place = panel.geometry();
  ASSERT_TRUE(QTest::qWaitFor([&] { return window.findChild<QPlainTextEdit*>() != nullptr; }, 30000));
  EXPECT_TRUE(first.hasCome);
  EXPECT_FALSE(first.hasLog);
  QApplication::processEvents();
  EXPECT_EQ(window.findChild<QPlainTextEdit*>()->parentWidget(), &panel);
  EXPECT_TRUE(window.findChild<QPlainTextEdit*>()->isVisible());
  EXPECT_EQ(panel.geometry(), place);
}

TEST_F(DebugLogPanelTest, KeepsASelectionWhenLinesArrive) {
  writeLines(25);
  QTextCursor cursor(log().document());
  cursor.movePosition(QTextCursor::Down, QTextCursor::MoveAnchor, 3);
  cursor.select(QTextCursor::LineUnderCursor);
  log().setTextCursor(cursor);
  const QString selected = log().textCursor().selectedText();
  ASSERT_FALSE(selected.isEmpty());
  writeLines(2);
  EXPECT_EQ(log().textCursor().selectedText(), selected);
}

TEST_F(DebugLogPanelTest, CanBeSelectedByMouseButNotChanged) {
  host.activate();
  QTest::mouseDClick(log().viewport(), Qt::LeftButton, {}, {150, 12});
  EXPECT_TRUE(log().textCursor().hasSelection());
  const QString text = log().toPlainText();
  QTest::keyClicks(&log(), "x");
  EXPECT_EQ(log().toPlainText(), text);
}

TEST_F(DebugLogPanelTest, HasANameInTheCurrentLanguage) {
  EXPECT_EQ(accessibleName(log()), "Debug log");
  host.state.chooseLanguage(AppLanguage::chinese);
  host.settle();
  EXPECT_EQ(accessibleName(log()), "调试日志");
}

}  // namespace
}  // namespace vantorel
