#include "FourCharCode.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

TEST(FourCharCode, FoldsFourLettersBigEndian) {
  EXPECT_EQ(fourCharCodeValue("ABCD"), 0x41424344U);
  EXPECT_EQ(fourCharCodeValue("VTKY"), 0x56544B59U);
}

TEST(FourCharCode, IsZeroForTheEmptyText) { EXPECT_EQ(fourCharCodeValue(""), 0U); }

TEST(FourCharCode, IsSmallerForFewerLetters) { EXPECT_EQ(fourCharCodeValue("AB"), 0x4142U); }

TEST(FourCharCode, IgnoresWhatComesAfterTheFourth) {
  EXPECT_EQ(fourCharCodeValue("ABCDE"), fourCharCodeValue("ABCD"));
}

TEST(FourCharCode, UsesTheBytesOfMacOsRoman) {
  EXPECT_EQ(fourCharCodeValue("é"), 0x8EU);
  EXPECT_EQ(fourCharCodeValue("Äˇ"), 0x80FFU);
  EXPECT_EQ(fourCharCodeValue("€"), 0xDBU);
}

TEST(FourCharCode, IsZeroWhenACharacterCannotBeEncoded) {
  EXPECT_EQ(fourCharCodeValue("中"), 0U);
  EXPECT_EQ(fourCharCodeValue("ABCD中"), 0U);
  EXPECT_EQ(fourCharCodeValue("🎮"), 0U);
}

TEST(FourCharCode, IsZeroForWhatIsNotUtf8) {
  EXPECT_EQ(fourCharCodeValue("A\x80"), 0U);
  EXPECT_EQ(fourCharCodeValue("A\xC3"), 0U);
  EXPECT_EQ(fourCharCodeValue("A\xC3\x41"), 0U);
}

}  // namespace
}  // namespace vantorel
