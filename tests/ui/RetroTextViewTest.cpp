#include "RetroTextView.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QScrollBar>
#include <QTest>

#include "AppTheme.h"
#include "Rendering.h"

namespace vantorel {
namespace {

TEST(RetroTextView, HasAnOutlineThatShowsTheFocus) {
  RetroTextView view;
  view.resize(200, 80);
  QImage image = rendered(view);
  EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::black));
  EXPECT_EQ(runLength(image, {0, 40}, {1, 0}), 2);
  EXPECT_EQ(image.pixelColor(2, 40), QColor(Qt::white));
  view.show();
  view.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&view, 30000));
  view.setFocus();
  EXPECT_EQ(rendered(view).pixelColor(0, 0), AppTheme::secondaryAccent());
}

TEST(RetroTextView, IsCopiedButNotChangedByKey) {
  RetroTextView view;
  view.setPlainText(QStringLiteral("first\nsecond"));
  QTest::keyClicks(&view, QStringLiteral("typed"));
  EXPECT_EQ(view.toPlainText(), QStringLiteral("first\nsecond"));
  QTest::keySequence(&view, QKeySequence::SelectAll);
  QTest::keySequence(&view, QKeySequence::Copy);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("first\nsecond"));
}

TEST(RetroTextView, WrapsLinesThatAreTooLong) {
  RetroTextView view;
  view.resize(120, 200);
  view.setPlainText(QString(200, u'M'));
  view.show();
  EXPECT_EQ(view.horizontalScrollBar()->maximum(), 0);
}

}  // namespace
}  // namespace vantorel
