#include "BuiltInFonts.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QFontDatabase>
#include <QGlyphRun>
#include <QPainterPath>
#include <QRawFont>
#include <filesystem>

#include "QtLayout.h"
#include "Typography.h"

namespace vantorel {
namespace {

namespace fs = std::filesystem;

/// The number of characters of `text` for which no font has a picture.
qsizetype missingGlyphs(const QString& text) {
  qsizetype missing = 0;
  for (const QGlyphRun& run : QtLayout(text, monospaced()).runs()) missing += run.glyphIndexes().count(0);
  return missing;
}

class BuiltInFonts : public testing::Test {
 protected:
  /// Qt looks at the fonts anew when one of its own was taken away.
  ~BuiltInFonts() override {
    QFontDatabase::removeApplicationFont(QFontDatabase::addApplicationFont(":/fonts/DejaVu Sans"));
    useBuiltInFonts();
  }
};

TEST_F(BuiltInFonts, AreTheOnlyOnes) {
  for (const char* family : {"DejaVu Sans Mono", "DejaVu Sans", "WenQuanYi Micro Hei", "Noto Color Emoji"})
    EXPECT_TRUE(QFontDatabase::hasFamily(family)) << family;
  EXPECT_EQ(missingGlyphs("Ж"), 1)
      << "which none of them has, but the font of the system that this one is from";
}

TEST_F(BuiltInFonts, HaveEveryCharacterOfTheProgram) {
  QString characters;
  for (const auto& entry : fs::recursive_directory_iterator(VANTOREL_SOURCE_DIR "/src")) {
    if (entry.path().extension() != ".cpp" && entry.path().extension() != ".h") continue;
    QFile file(QString::fromStdString(entry.path()));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    characters += QString::fromUtf8(file.readAll()).remove(u'\n');
  }
  EXPECT_TRUE(characters.contains("万")) << "the texts were read";
  EXPECT_TRUE(isInBuiltInFonts(characters));
  EXPECT_EQ(missingGlyphs(characters), 0);
}

TEST_F(BuiltInFonts, HaveEveryLatinLetter) {
  for (ushort letter = 0x20; letter <= 0x17F; ++letter) {
    if (letter == 0x7F) letter = 0xA0;
    EXPECT_TRUE(isInBuiltInFonts(QChar(letter))) << letter;
  }
}

/// The shape of an "I".
QPainterPath shape(const QFont& font) {
  const QRawFont raw = QRawFont::fromFont(font);
  return raw.pathForGlyph(raw.glyphIndexesForString("I").constFirst());
}

TEST_F(BuiltInFonts, ComeInTwoWeights) {
  EXPECT_GT(shape(monospaced(12, QFont::Bold)).boundingRect().width(),
            shape(monospaced(12)).boundingRect().width());
  EXPECT_GT(shape(systemFont(12, QFont::Bold)).boundingRect().width(),
            shape(systemFont(12)).boundingRect().width());
  EXPECT_EQ(shape(systemFont(12, QFont::Black)), shape(systemFont(12, QFont::Bold)))
      << "the heaviest there is";
}

TEST_F(BuiltInFonts, SayWhatTheyLack) {
  EXPECT_TRUE(isInBuiltInFonts(""));
  EXPECT_TRUE(isInBuiltInFonts("Xbox 手柄 🎮"));
  EXPECT_TRUE(isInBuiltInFonts("a tab\tand a line\n"));
  EXPECT_FALSE(isInBuiltInFonts("Xbox Ж"));
  EXPECT_FALSE(isInBuiltInFonts("🦄"));
}

TEST_F(BuiltInFonts, AreEnoughForMostForeignTexts) {
  EXPECT_EQ(foreignText("Xbox Wireless Controller® ü"), QString("Xbox Wireless Controller® ü"));
  EXPECT_EQ(missingGlyphs("Ж"), 1) << "nobody needed the fonts of the system";
}

TEST_F(BuiltInFonts, AreJoinedByThoseOfTheSystemWhenATextNeedsThem) {
  EXPECT_EQ(foreignText("Геймпад Ж"), QString("Геймпад Ж"));
  EXPECT_EQ(missingGlyphs("Геймпад Ж"), 0);
  EXPECT_EQ(missingGlyphs("A 中文 手柄 🎮 ⌘"), 0);
}

TEST_F(BuiltInFonts, DrawWarningsAndKeyboardsAsPictures) {
  const QList<QGlyphRun> runs = QtLayout("⚠⌨", monospaced()).runs();
  ASSERT_EQ(runs.size(), 1);
  const QGlyphRun& run = runs.constFirst();
  EXPECT_EQ(run.rawFont().familyName(), "Noto Color Emoji");
  EXPECT_EQ(run.glyphIndexes().size(), 2);
  EXPECT_FALSE(run.glyphIndexes().contains(0));
}

}  // namespace
}  // namespace vantorel
