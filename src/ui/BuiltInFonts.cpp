#include "BuiltInFonts.h"

#include <fontconfig/fontconfig.h>

#include <QDir>
#include <QFontDatabase>
#include <QResource>
#include <algorithm>
#include <memory>

#include "TextLine.h"

/// The fonts are in a static library, whose resources do not announce themselves.
static void announceFonts() { Q_INIT_RESOURCE(fonts); }

namespace vantorel {

namespace {

struct Release {
  void operator()(FcConfig* configuration) const { FcConfigDestroy(configuration); }
};
using Configuration = std::unique_ptr<FcConfig, Release>;

/// Each is named after its family and, behind a colon, its style.
void addBuiltInFonts(const QStringList& familiesThere) {
  const QDir fonts(QStringLiteral(":/fonts"));
  for (const QString& name : fonts.entryList()) {
    if (familiesThere.contains(name.section(u':', 0, 0))) continue;
    QFontDatabase::addApplicationFontFromData(QResource(fonts.filePath(name)).uncompressedData());
  }
}

bool hasSystemFonts() {
  const FcFontSet* const fonts = FcConfigGetFonts(nullptr, FcSetSystem);
  return fonts != nullptr && fonts->nfont > 0;
}

/// Makes the fonts of `configuration` those of the program, with the built-in ones of families that it lacks:
/// its own have more characters.
void use(const Configuration& configuration) {
  QFontDatabase::removeAllApplicationFonts();  // lets Qt look at the configuration again
  FcConfigSetCurrent(configuration.get());
  addBuiltInFonts(QFontDatabase::families());
}

bool isBuiltIn(char32_t character) {
  const FcFontSet* const fonts = FcConfigGetFonts(nullptr, FcSetApplication);
  if (fonts == nullptr) return false;
  return std::any_of(fonts->fonts, fonts->fonts + fonts->nfont, [character](const FcPattern* font) {
    FcCharSet* characters = nullptr;
    return FcPatternGetCharSet(font, FC_CHARSET, 0, &characters) == FcResultMatch &&
           FcCharSetHasChar(characters, character);
  });
}

}  // namespace

void useBuiltInFonts() {
  announceFonts();
  use(Configuration(FcConfigCreate()));
}

bool isInBuiltInFonts(const QString& text) {
  const auto characters = text.toStdU32String();
  return std::all_of(characters.begin(), characters.end(), isBuiltIn);
}

QString foreignText(std::string_view text) {
  QString result = fromCore(text);
  if (!hasSystemFonts() && !isInBuiltInFonts(result)) use(Configuration(FcInitLoadConfigAndFonts()));
  return result;
}

}  // namespace vantorel
