#include "WrappedText.h"

#include <gtest/gtest.h>

#include <limits>

#include "Typography.h"

namespace vantorel {
namespace {

const QStringList texts = {
    "ACTIVE_MAPPING",
    "DOWNLOAD_DRIVER",
    "SUPPORTED_CONTROLLERS",
    "[ DISCONNECTED ]",
    "LEFT_STICK: Move cursor + Click (L3)",
    "左摇杆: 移动光标 + 按下点击 (L3)",
    "Xbox（需要驱动）",
    "AControllerWhoseNameHasNoBlankAtAllAndGoesOnAndOn",
    "🕹️🎮 🕹️🎮",
    "https://example.org/a/rather/long/address",
    "several   blanks    between",
    "",
};

TEST(WrappedText, NeverExceedsItsWidth) {
  for (const QString& text : texts) {
    for (double width = 24; width < 300; width += 7) {
      const WrappedText lines(text, Lettering(monospaced(10, QFont::Bold)), width);
      EXPECT_LE(lines.size().width(), width + 0.02) << text.toStdString();
      EXPECT_GE(lines.lineCount(), 1);
    }
  }
}

int lineCount(const QString& text, double width) {
  return WrappedText(text, Lettering(monospaced(10)), width).lineCount();
}

double widthOf(const char* text) {
  return WrappedText(QString(text), Lettering(monospaced(10)), std::numeric_limits<double>::infinity())
      .size()
      .width();
}

TEST(WrappedText, BreaksNamesAfterTheirUnderscores) {
  EXPECT_EQ(lineCount("DOWNLOAD_DRIVER", widthOf("DOWNLOAD_DRIVER")), 1);
  EXPECT_EQ(lineCount("DOWNLOAD_DRIVER", widthOf("DOWNLOAD_")), 2);
  EXPECT_EQ(lineCount("MENU_BAR_MODE", widthOf("MENU_BAR_")), 2);
  EXPECT_EQ(widestPart("MENU_BAR_MODE", Lettering(monospaced(10))), widthOf("MENU_"));
}

TEST(WrappedText, BreaksBetweenWordsAndBeforeBracketsButNotInNumbers) {
  EXPECT_EQ(widestPart("move the cursor", Lettering(monospaced(10))), widthOf("cursor"));
  EXPECT_EQ(widestPart("PS4(Bluetooth)", Lettering(monospaced(10))), widthOf("(Bluetooth)"));
  EXPECT_EQ(widestPart("12:30", Lettering(monospaced(10))), widthOf("12:30"));
}

TEST(WrappedText, BreaksBetweenChineseCharacters) {
  EXPECT_EQ(widestPart("摇杆控制", Lettering(monospaced(10))), widthOf("控制"));
  EXPECT_EQ(lineCount("摇杆控制", widthOf("摇杆")), 2);
}

TEST(WrappedText, LeavesNoSingleCharacterOnTheLastLine) {
  const auto widthOfLines = [](const char* text, const char* room) {
    return WrappedText(QString(text), Lettering(monospaced(10)), widthOf(room)).size().width();
  };
  EXPECT_DOUBLE_EQ(widthOfLines("滚动页面", "滚动页"), widthOf("滚动"));
  EXPECT_DOUBLE_EQ(widthOfLines("PS4 DualShock 4", "PS4 DualShock"), widthOf("DualShock 4"));
}

TEST(WrappedText, KeepsARemarkInFullWidthParenthesesWhole) {
  EXPECT_EQ(widestPart("PS4 DualShock（蓝牙）", Lettering(monospaced(10))), widthOf("DualShock"));
  EXPECT_EQ(widestPart("Pro（蓝牙蓝牙蓝牙）", Lettering(monospaced(10))), widthOf("（蓝牙蓝牙蓝牙）"));
  EXPECT_EQ(lineCount("PS4 DualShock（蓝牙）", widthOf("PS4 DualShock（蓝")), 2);
  EXPECT_EQ(lineCount("（蓝牙）摇杆", widthOf("（蓝牙）摇")), 2);
}

TEST(WrappedText, BreaksInsideAWordOnlyWhereNothingElseHelps) {
  EXPECT_EQ(lineCount("ab abcdefgh", widthOf("abcdefgh")), 2);
  EXPECT_EQ(lineCount("abcdefgh", widthOf("abcd")), 2);
}

TEST(WrappedText, DropsTheBlanksAtTheEndOfALine) {
  const WrappedText lines("left right", Lettering(monospaced(10)), widthOf("right"));
  EXPECT_EQ(lines.lineCount(), 2);
  EXPECT_DOUBLE_EQ(lines.size().width(), widthOf("right"));
}

TEST(WrappedText, KeepsItsOwnLineBreaks) {
  EXPECT_EQ(lineCount("one\ntwo\n\nfour", 500), 4);
  EXPECT_DOUBLE_EQ(widthOf("one\nthree"), widthOf("three"));
}

TEST(WrappedText, NeverTearsACharacterApart) {
  const QString joystick = "🕹️";
  EXPECT_EQ(lineCount(joystick, 1), 1) << "at least one character a line, however narrow";
  EXPECT_EQ(lineCount(joystick + joystick, 1), 2);
}

}  // namespace
}  // namespace vantorel
