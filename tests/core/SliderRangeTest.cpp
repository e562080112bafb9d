#include "SliderRange.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace vantorel {
namespace {

TEST(SliderRange, HasTheRangesOfTheThumbstickMouse) {
  EXPECT_EQ(mouseSensitivityRange.stepCount(), 25);
  EXPECT_EQ(mouseSensitivityRange.valueAt(0), 5.0F);
  EXPECT_EQ(mouseSensitivityRange.valueAt(25), 30.0F);
  EXPECT_EQ(scrollSensitivityRange.stepCount(), 18);
  EXPECT_EQ(scrollSensitivityRange.valueAt(0), 1.0F);
  EXPECT_EQ(scrollSensitivityRange.valueAt(1), 1.5F);
  EXPECT_EQ(scrollSensitivityRange.valueAt(18), 10.0F);
  EXPECT_EQ(deadzoneRange.stepCount(), 9);
  EXPECT_EQ(deadzoneRange.valueAt(0), 0.05F);
  EXPECT_EQ(deadzoneRange.valueAt(9), 0.5F);
}

TEST(SliderRange, HoldsTheSinglePrecisionValueNearestToTheDecimal) {
  for (int step = 0; step <= deadzoneRange.stepCount(); ++step) {
    const std::string decimal = "0." + std::string(step == 0 ? "0" : "") + std::to_string(5 * (step + 1));
    EXPECT_EQ(deadzoneRange.valueAt(step), std::strtof(decimal.c_str(), nullptr)) << decimal;
  }
}

TEST(SliderRange, SnapsToTheNearestPoint) {
  EXPECT_EQ(mouseSensitivityRange.snapped(15.4), 15.0F);
  EXPECT_EQ(mouseSensitivityRange.snapped(15.6), 16.0F);
  EXPECT_EQ(scrollSensitivityRange.snapped(3.2), 3.0F);
  EXPECT_EQ(deadzoneRange.snapped(0.16), 0.15F);
}

TEST(SliderRange, SnapsUpwardsFromHalfWay) {
  EXPECT_EQ(mouseSensitivityRange.snapped(15.5), 16.0F);
  EXPECT_EQ(mouseSensitivityRange.snapped(15.4999999999), 15.0F);
  EXPECT_EQ(scrollSensitivityRange.snapped(3.25), 3.5F);
  for (int step = 0; step < deadzoneRange.stepCount(); ++step) {
    const std::string halfWay =
        "0." + std::string(step == 0 ? "0" : "") + std::to_string(50 * (step + 1) + 25);
    EXPECT_EQ(deadzoneRange.nearestStep(std::stod(halfWay)), step + 1) << halfWay;
  }
}

TEST(SliderRange, GivesTheNearerEndOutsideTheRange) {
  EXPECT_EQ(mouseSensitivityRange.snapped(-1e300), 5.0F);
  EXPECT_EQ(mouseSensitivityRange.snapped(1e300), 30.0F);
  EXPECT_EQ(deadzoneRange.snapped(0), 0.05F);
  EXPECT_EQ(deadzoneRange.snapped(0.51), 0.5F);
}

}  // namespace
}  // namespace vantorel
