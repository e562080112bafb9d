#include "ColorHex.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

const QColor fallback(1, 1, 0, 1);

TEST(ColorHex, ReadsSixDigitsWithWhateverStandsAroundThem) {
  const QColor grey(224, 224, 224);
  EXPECT_EQ(colorFromHex(u"E0E0E0"), grey);
  EXPECT_EQ(colorFromHex(u"e0e0e0"), grey);
  EXPECT_EQ(colorFromHex(u"#E0E0E0"), grey);
  EXPECT_EQ(colorFromHex(u"  E0E0E0\n"), grey);
  EXPECT_EQ(colorFromHex(u"（E0E0E0）"), grey);
  EXPECT_EQ(colorFromHex(u"🎨E0E0E0🎨"), grey);
  EXPECT_EQ(colorFromHex(u"\u0301E0E0E0"), grey);
  EXPECT_NEAR(grey.redF(), 224 / 255.0, 1e-6);
  EXPECT_EQ(colorFromHex(u"FF004D"), QColor(255, 0, 77, 255));
}

TEST(ColorHex, DoublesEachOfThreeDigits) {
  EXPECT_EQ(colorFromHex(u"F0A"), QColor(255, 0, 170, 255));
  EXPECT_EQ(colorFromHex(u"#888"), QColor(136, 136, 136, 255));
}

TEST(ColorHex, TakesTheOpacityFirstOfEightDigits) {
  EXPECT_EQ(colorFromHex(u"80FF0000"), QColor(255, 0, 0, 128));
  EXPECT_EQ(colorFromHex(u"00123456"), QColor(0x12, 0x34, 0x56, 0));
}

TEST(ColorHex, IsPracticallyInvisibleForAnyOtherLength) {
  for (const char16_t* text : {u"12345", u"", u"#", u"   ", u"1", u"12", u"1234", u"1234567", u"123456789"}) {
    EXPECT_EQ(colorFromHex(text), fallback) << QStringView(text).toUtf8().toStdString();
  }
  EXPECT_NEAR(fallback.redF(), 1 / 255.0, 1e-6);
  EXPECT_NEAR(fallback.alphaF(), 1 / 255.0, 1e-6);
}

TEST(ColorHex, KeepsWhatStandsInside) { EXPECT_EQ(colorFromHex(u"FF-004D"), fallback); }

TEST(ColorHex, CountsCharactersAndNotTheDigitsItReads) {
  EXPECT_EQ(colorFromHex(u"GGG"), QColor(0, 0, 0, 255));
  EXPECT_EQ(colorFromHex(u"FGG"), QColor(0, 0, 255, 255)) << "the value 0xF is its last digit";
  EXPECT_EQ(colorFromHex(u"FF 4D0"), QColor(0, 0, 255, 255)) << "the value 0xFF ends at the blank";
  EXPECT_EQ(colorFromHex(u"0xF"), QColor(0, 0, 0, 255)) << "no prefix is known";
}

TEST(ColorHex, CountsEveryLetterAndDigitOfEveryScriptAsOneCharacter) {
  EXPECT_EQ(colorFromHex(u"红绿蓝"), QColor(0, 0, 0, 255));
  EXPECT_EQ(colorFromHex(u"F00٣"), fallback) << "an Arabic digit is not trimmed";
  EXPECT_EQ(colorFromHex(u"F𝟎𝟎"), QColor(0, 0, 255, 255)) << "beyond the first plane";
  EXPECT_EQ(colorFromHex(u"F0e\u0301"), QColor(255, 0, 238, 255)) << "an accent belongs to its letter";
}

}  // namespace
}  // namespace vantorel
