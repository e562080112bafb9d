#include "WrappingLabel.h"

#include <gtest/gtest.h>

#include <QAccessible>

#include "AppTheme.h"
#include "Rendering.h"
#include "Typography.h"

namespace vantorel {
namespace {

class CaptionLabel : public WrappingLabel {
 public:
  explicit CaptionLabel(const QString& text = {}) : WrappingLabel(monospaced(10), Qt::black) {
    setText(text);
  }
};

TEST(WrappingLabel, IsAsHighAsItsTextNeedsInItsWidth) {
  const CaptionLabel label("LEFT_STICK: Move cursor + Click (L3)");
  EXPECT_EQ(label.heightForWidth(label.sizeHint().width()), label.sizeHint().height());
  EXPECT_GT(label.heightForWidth(90), 2 * label.sizeHint().height());
  EXPECT_TRUE(label.hasHeightForWidth());
}

TEST(WrappingLabel, DrawsInsideItsBounds) {
  for (const char* text : {"LEFT_STICK: Move cursor + Click (L3)", "左摇杆: 移动光标 + 按下点击 (L3)",
                           "gjpqy_", "AControllerWhoseNameHasNoBlankAtAll"}) {
    QWidget page;
    CaptionLabel label(text);
    label.setParent(&page);
    label.setGeometry(20, 20, 80, label.heightForWidth(80));
    page.resize(120, label.height() + 40);
    const QImage image = rendered(page, 2);
    int outside = 0;
    const QRect inside(40, 40, 160, label.height() * 2);
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        if (!inside.contains(x, y) && image.pixelColor(x, y) != AppTheme::background()) ++outside;
      }
    }
    EXPECT_EQ(outside, 0) << text;
    EXPECT_LT(countOf(image.copy(inside), AppTheme::background()), inside.width() * inside.height()) << text;
  }
}

TEST(WrappingLabel, KeepsTheHeightOfTheTallestTextItMayShow) {
  CaptionLabel label("GRANTED");
  const QStringList alternatives = {"GRANTED", "a much longer text in several lines", "已授权"};
  label.reserveFor(alternatives);
  const int reserved = label.heightForWidth(80);
  for (const QString& alternative : alternatives) {
    EXPECT_GE(reserved, CaptionLabel(alternative).heightForWidth(80));
    label.setText(alternative);
    EXPECT_EQ(label.heightForWidth(80), reserved);
  }
  EXPECT_LT(CaptionLabel("GRANTED").heightForWidth(80), reserved);
}

TEST(WrappingLabel, KeepsTheLinesThatAreReserved) {
  CaptionLabel label("one");
  const int oneLine = label.heightForWidth(200);
  label.reserveLines(3);
  EXPECT_GE(label.heightForWidth(200), 3 * oneLine - 2);
  const int reserved = label.heightForWidth(200);
  label.setText("now\nthree\nlines");
  EXPECT_EQ(label.heightForWidth(200), reserved);
}

TEST(WrappingLabel, DoesNotWidenWhatHoldsItForAVeryLongWord) {
  EXPECT_LE(CaptionLabel("AControllerWhoseNameHasNoBlankAtAll").minimumSizeHint().width(), 60);
}

TEST(WrappingLabel, ChangesItsColour) {
  CaptionLabel label("MMMM");
  label.resize(label.sizeHint());
  label.setColor(AppTheme::accent());
  EXPECT_GT(countOf(rendered(label, 2), AppTheme::accent()), 10);
}

TEST(WrappingLabel, NeverReadsItsTextAsMarkup) {
  const CaptionLabel label("<b>bold</b>");
  EXPECT_EQ(label.sizeHint().width(), CaptionLabel("(b)bold(/b)").sizeHint().width());
}

TEST(WrappingLabel, IsItsPresentTextToAssistiveTechnology) {
  CaptionLabel label("NO DEVICE FOUND");
  label.setText("[ ONLINE ]");
  QAccessibleInterface* const shown = QAccessible::queryAccessibleInterface(&label);
  ASSERT_NE(shown, nullptr);
  EXPECT_EQ(shown->role(), QAccessible::StaticText);
  EXPECT_EQ(shown->text(QAccessible::Name), QStringLiteral("[ ONLINE ]"));
}

}  // namespace
}  // namespace vantorel
