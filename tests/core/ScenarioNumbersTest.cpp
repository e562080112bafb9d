#include "ScenarioNumbers.h"

#include <gmock/gmock.h>

namespace vantorel {
namespace {

using testing::Optional;
using namespace std::chrono_literals;

constexpr std::string_view tooLarge = "1000000000000000000000000000000000000000000000000000000000000";

TEST(ScenarioNumbersTest, ReadDecimals) {
  EXPECT_THAT(decimalNumber("0"), Optional(0.0));
  EXPECT_THAT(decimalNumber("-12.5"), Optional(-12.5));
  EXPECT_THAT(decimalNumber("007.250"), Optional(7.25));
  EXPECT_THAT(decimalNumber("0.1"), Optional(0.1));
}

TEST(ScenarioNumbersTest, RefuseEverythingElse) {
  for (const char* text :
       {"", "-", "+1", ".5", "5.", "1e3", "1,5", "0x10", "inf", "nan", "--1", "1 ", "1.2.3"}) {
    EXPECT_EQ(decimalNumber(text), std::nullopt) << text;
    EXPECT_EQ(singlePrecisionNumber(text), std::nullopt) << text;
  }
}

TEST(ScenarioNumbersTest, ReadTheNearestSinglePrecisionValueOfTheText) {
  EXPECT_THAT(singlePrecisionNumber("0.15"), Optional(0.15F));
  // Just above the middle between two single-precision values; its double-precision value is the middle
  // itself.
  EXPECT_THAT(singlePrecisionNumber("0.50000002980232238770"), Optional(0.50000006F));
  EXPECT_THAT(singlePrecisionNumber("0.50000002980232238769"), Optional(0.5F));
}

TEST(ScenarioNumbersTest, ReadWhatIsTooSmallForItsTypeAsZero) {
  const std::string tiny = "0." + std::string(60, '0') + "1";
  EXPECT_THAT(singlePrecisionNumber(tiny), Optional(0.0F));
  EXPECT_THAT(singlePrecisionNumber("-" + tiny), Optional(0.0F));
  EXPECT_THAT(decimalNumber("0." + std::string(400, '0') + "1"), Optional(0.0));
}

TEST(ScenarioNumbersTest, ReadTimesInMillisecondsAndSeconds) {
  EXPECT_THAT(timeLength("50ms"), Optional(50ms));
  EXPECT_THAT(timeLength("2s"), Optional(2s));
  EXPECT_THAT(timeLength("0.5s"), Optional(500ms));
  EXPECT_THAT(timeLength("16.5ms"), Optional(16500us));
  EXPECT_THAT(timeLength("0s"), Optional(0s));
  EXPECT_THAT(timeLength("0.000000001s"), Optional(1ns));
  EXPECT_THAT(timeLength("0.1s"), Optional(100ms));
}

TEST(ScenarioNumbersTest, RoundTimesToTheNearestNanosecond) {
  EXPECT_THAT(timeLength("0.0000000014s"), Optional(1ns));
  EXPECT_THAT(timeLength("0.0000015ms"), Optional(2ns));
  EXPECT_THAT(timeLength("0.9999999999s"), Optional(1s));
}

TEST(ScenarioNumbersTest, RefuseOtherTimes) {
  for (const char* text :
       {"", "50", "ms", "s", "-1s", "1m", "1 s", "1.s", ".5s", "1e3ms", "50MS", "1sms", "+1s"}) {
    EXPECT_EQ(timeLength(text), std::nullopt) << text;
  }
}

TEST(ScenarioNumbersTest, RefuseTimesOfMoreThanACentury) {
  EXPECT_NE(timeLength("3000000000s"), std::nullopt);
  EXPECT_EQ(timeLength("4000000000s"), std::nullopt);
  EXPECT_EQ(timeLength(std::string(tooLarge) + "s"), std::nullopt);
}

TEST(ScenarioNumbersTest, RefuseWhatIsTooLargeForItsType) {
  EXPECT_NE(decimalNumber(tooLarge), std::nullopt);
  EXPECT_EQ(singlePrecisionNumber(tooLarge), std::nullopt);
  EXPECT_EQ(decimalNumber(std::string(400, '9')), std::nullopt);
}

}  // namespace
}  // namespace vantorel
