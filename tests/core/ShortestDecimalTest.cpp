#include "ShortestDecimal.h"

#include <gtest/gtest.h>

#include <limits>

namespace vantorel {
namespace {

TEST(ShortestDecimal, IsTheShortestThatReadsBack) {
  EXPECT_EQ(shortestDecimal(0.15F), "0.15");
  EXPECT_EQ(shortestDecimal(0.1F), "0.1");
  EXPECT_EQ(shortestDecimal(507.5), "507.5");
  EXPECT_EQ(shortestDecimal(1.0 / 3), "0.3333333333333333");
}

TEST(ShortestDecimal, HasNoFractionOnWholeNumbersAndNoExponent) {
  EXPECT_EQ(shortestDecimal(15.0F), "15");
  EXPECT_EQ(shortestDecimal(-3.0), "-3");
  EXPECT_EQ(shortestDecimal(100000.0), "100000");
  EXPECT_EQ(shortestDecimal(0.00001), "0.00001");
  EXPECT_EQ(shortestDecimal(1e21), "1000000000000000000000");
}

TEST(ShortestDecimal, WritesZeroWithoutASign) {
  EXPECT_EQ(shortestDecimal(-0.0), "0");
  EXPECT_EQ(shortestDecimal(-0.0F), "0");
}

TEST(ShortestDecimal, HoldsTheLongestNumbers) {
  EXPECT_EQ(shortestDecimal(std::numeric_limits<double>::max()).size(), 309U);
  EXPECT_EQ(std::stod(shortestDecimal(-std::numeric_limits<double>::min())),
            -std::numeric_limits<double>::min());
  EXPECT_EQ(shortestDecimal(std::numeric_limits<float>::max()).size(), 39U);
}

TEST(ShortestDecimal, CanKeepAFractionOnWholeNumbers) {
  EXPECT_EQ(shortestDecimalWithFraction(3.0F), "3.0");
  EXPECT_EQ(shortestDecimalWithFraction(0.15F), "0.15");
  EXPECT_EQ(shortestDecimalWithFraction(10.0F), "10.0");
}

}  // namespace
}  // namespace vantorel
