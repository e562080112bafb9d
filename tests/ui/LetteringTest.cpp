#include "Lettering.h"

#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <cmath>

#include "GamepadButton.h"
#include "KeyboardKey.h"
#include "QtLayout.h"
#include "TextLine.h"
#include "Typography.h"

namespace vantorel {
namespace {

QStringList lines() {
  QStringList all{"",
                  "i",
                  "MENU_BAR_MODE",
                  "> STATUS: ONLINE | VERSION 1.0.4",
                  "[ 在线 ]",
                  "~ {}",
                  "万托雷.EXE",
                  "（蓝牙）",
                  "未检测到，需要。",
                  "⌘ + ⇧ + M 快速切换",
                  "左摇杆: 移动光标 + 按下点击 (L3)"};
  for (const AppLanguage language : allAppLanguages()) {
    for (const GamepadButton button : allGamepadButtons()) all += fromCore(displayName(button, language));
    for (const KeyboardKey key : allKeyboardKeys()) all += fromCore(displayName(key, language));
  }
  return all;
}

QStringList unusualLines() { return {"🕹️", "é", "Ж", "A 🎮 中", "e\u0301", "→ ✓"}; }

class LetteringIn : public testing::TestWithParam<std::pair<int, QFont::Weight>> {
 protected:
  const QFont font = monospaced(GetParam().first, GetParam().second);
  const Lettering lettering{font};
};

INSTANTIATE_TEST_SUITE_P(
    Lettering, LetteringIn,
    testing::Values(std::pair(9, QFont::Normal), std::pair(9, QFont::Bold), std::pair(10, QFont::Normal),
                    std::pair(10, QFont::Bold), std::pair(12, QFont::Normal), std::pair(12, QFont::Bold),
                    std::pair(13, QFont::Normal), std::pair(26, QFont::Bold), std::pair(10, QFont::Black)),
    [](const auto& of) {
      return std::to_string(of.param.first) + (of.param.second == QFont::Normal ? ""
                                               : of.param.second == QFont::Bold ? "Bold"
                                                                                : "Black");
    });

TEST_P(LetteringIn, MeasuresAsQtLaysOut) {
  constexpr double roundingOfGlyphs = 1;  // an outline that is made bold
  for (const QString& text : lines() + unusualLines()) {
    const QtLayout layout(text, font);
    EXPECT_NEAR(lettering.size(text).width(), layout.line().naturalTextWidth(), roundingOfGlyphs)
        << text.toStdString();
    EXPECT_DOUBLE_EQ(lettering.size(text).height(), layout.line().height()) << text.toStdString();
  }
}

TEST_P(LetteringIn, KnowsTheHeightOfALine) {
  EXPECT_DOUBLE_EQ(lettering.lineHeight(), std::ceil(QFontMetricsF(font).height()));
}

TEST_P(LetteringIn, KnowsWhereEachCharacterBegins) {
  for (const QString& text : lines() + unusualLines()) {
    const QtLayout layout(text, font);
    const std::vector<double> pens = lettering.pens(text);
    ASSERT_EQ(pens.size(), static_cast<std::size_t>(text.size()) + 1);
    for (int index = 0; index <= text.size(); ++index) {
      EXPECT_NEAR(pens.at(static_cast<std::size_t>(index)), layout.line().cursorToX(index),
                  0.02 * static_cast<double>(text.size()))
          << text.toStdString();
    }
  }
}

/// What `draw` leaves on a white ground, at a scale of the screen.
template <class Draw>
QImage drawn(double scale, Draw draw) {
  QImage image(static_cast<int>(800 * scale), static_cast<int>(60 * scale), QImage::Format_RGB32);
  image.setDevicePixelRatio(scale);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setPen(Qt::black);
  draw(painter);
  return image;
}

TEST_P(LetteringIn, DrawsAsQtDoes) {
  constexpr QPointF corner(10, 5);
  for (const double scale : {1.0, 1.5, 2.0}) {
    for (const QString& text : lines() + unusualLines()) {
      const QtLayout layout(text, font);
      const QImage expected = drawn(scale, [&](QPainter& painter) { layout.line().draw(&painter, corner); });
      EXPECT_EQ(drawn(scale, [&](QPainter& painter) { lettering.draw(painter, corner, text); }), expected)
          << text.toStdString() << " at " << scale;
    }
  }
}

/// In cells and squares as they are, where a layout would count what its glyphs have.
TEST(Lettering, MeasuresWithoutALayout) {
  const QFont font = monospaced(10);
  const Lettering lettering(font);
  const std::vector<double> pens = lettering.pens("M⌘龘龘");  // the last is in no built-in font
  EXPECT_DOUBLE_EQ(pens.at(2), 2 * pens.at(1));
  EXPECT_DOUBLE_EQ(pens.at(4), pens.at(2) + 20);
}

TEST(Lettering, DrawsChineseOfOtherFontsAsQtDoes) {
  const QFont font = monospaced(13);
  const QString name = "小米 手柄 龘";
  const QImage expected = drawn(1, [&](QPainter& painter) {
    QtLayout(name, font).line().draw(&painter, {10, 5});
  });
  EXPECT_EQ(drawn(1, [&](QPainter& painter) { Lettering(font).draw(painter, {10, 5}, name); }), expected);
}

}  // namespace
}  // namespace vantorel
