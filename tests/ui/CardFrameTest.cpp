#include "CardFrame.h"

#include <gtest/gtest.h>

#include "Rendering.h"

namespace vantorel {
namespace {

class CardFrameAtScale : public testing::TestWithParam<double> {
 protected:
  int pixels(double points) const { return static_cast<int>(points * GetParam() + 0.5); }
};

INSTANTIATE_TEST_SUITE_P(CardFrame, CardFrameAtScale, allScales(), scaleName);

TEST_P(CardFrameAtScale, HasAnOutlineOfThreePointsInsideItsEdge) {
  CardFrame card;
  card.resize(104, 84);  // 100 by 80 and the shadow
  const QImage image = rendered(card, GetParam());
  const int right = pixels(100) - 1;
  const int lower = pixels(80) - 1;
  const int line = pixels(3);
  const QPoint middle(pixels(50), pixels(40));
  EXPECT_EQ(runLength(image, {0, middle.y()}, {1, 0}), line);
  EXPECT_EQ(runLength(image, {right, middle.y()}, {-1, 0}), line);
  EXPECT_EQ(runLength(image, {middle.x(), 0}, {0, 1}), line);
  EXPECT_EQ(runLength(image, {middle.x(), lower}, {0, -1}), line);
  EXPECT_EQ(runLength(image, {0, 0}, {1, 0}), pixels(100)) << "square corners";
  EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::black));
  EXPECT_EQ(image.pixelColor(right, lower), QColor(Qt::black));
}

TEST_P(CardFrameAtScale, IsWhiteUpToItsOutlineWithoutSoftEdges) {
  CardFrame card;
  card.resize(104, 84);
  const QImage image = rendered(card, GetParam());
  const int line = pixels(3);
  const int white = (pixels(100) - 2 * line) * (pixels(80) - 2 * line);
  EXPECT_EQ(countOf(image, Qt::white), white);
  EXPECT_EQ(countOf(image, Qt::black), pixels(100) * pixels(80) - white);
}

TEST_P(CardFrameAtScale, CastsAHardShadowFourPointsRightAndDown) {
  CardFrame card(retroCard(AppTheme::accent()));
  card.resize(104, 84);
  const QImage image = rendered(card, GetParam());
  const QPoint beside(pixels(100), pixels(40));
  EXPECT_TRUE(isNearly(image.pixelColor(beside), blended(AppTheme::accent(), 0.12, AppTheme::background())));
  EXPECT_EQ(runLength(image, beside, {1, 0}), image.width() - pixels(100)) << "it reaches the widget's edge";
  EXPECT_EQ(runLength(image, beside, {0, -1}), pixels(40) - pixels(4) + 1) << "it begins four points down";
  const QPoint below(pixels(50), pixels(80));
  EXPECT_EQ(runLength(image, below, {-1, 0}), pixels(50) - pixels(4) + 1) << "it begins four points right";
  EXPECT_EQ(image.pixelColor(pixels(100), 0), AppTheme::background());
}

TEST_P(CardFrameAtScale, IsSharpWhereItDoesNotStandOnWholePixels) {
  QWidget page;
  page.resize(160, 120);
  CardFrame card({}, &page);
  card.setGeometry(7, 9, 87, 71);
  const QImage image = rendered(page, GetParam());
  const QColor shadow = image.pixelColor(pixels(7 + 83), pixels(9 + 40));
  const int area = countOf(image, Qt::white) + countOf(image, Qt::black) + countOf(image, shadow) +
                   countOf(image, AppTheme::background());
  EXPECT_EQ(area, image.width() * image.height()) << "there are four colours and none between them";
}

TEST(CardFrame, PadsItsContentBySixteenPoints) {
  CardFrame card;
  auto* content = new QWidget;
  card.contentLayout()->addWidget(content);
  card.resize(204, 104);
  card.layout()->activate();
  EXPECT_EQ(card.cardRect(), QRect(0, 0, 200, 100));
  EXPECT_EQ(content->geometry(), QRect(16, 16, 168, 68));
}

TEST(CardFrame, FollowsTheMeasuresItIsGiven) {
  CardStyle style;
  style.padding = 20;
  style.outlineWidth = 4;
  style.shadowOpacity = 0.08;
  style.shadowOffset = 8;
  CardFrame card(style);
  auto* content = new QWidget;
  card.contentLayout()->addWidget(content);
  card.resize(108, 88);
  card.layout()->activate();
  EXPECT_EQ(content->geometry(), QRect(20, 20, 60, 40));
  const QImage image = rendered(card);
  EXPECT_EQ(runLength(image, {0, 40}, {1, 0}), 4);
  EXPECT_EQ(runLength(image, {100, 40}, {1, 0}), 8);
  EXPECT_TRUE(isNearly(image.pixelColor(104, 84), blended(Qt::black, 0.08, AppTheme::background())));
}

}  // namespace
}  // namespace vantorel
