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
  void operator()(FcStrList* list) const { FcStrListDone(list); }
  void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
  void operator()(FcObjectSet* objects) const { FcObjectSetDestroy(objects); }
  void operator()(FcFontSet* fonts) const { FcFontSetDestroy(fonts); }
};
using Configuration = std::unique_ptr<FcConfig, Release>;

/// Whether those of the system are in use, be there any or not: only their configuration comes from files.
bool hasSystemFonts() {
  const std::unique_ptr<FcStrList, Release> files(FcConfigGetConfigFiles(nullptr));
  return files && FcStrListNext(files.get()) != nullptr;
}

/// By any of its names: where the user speaks Chinese, that of a Chinese font may come first.
bool isInUse(const QString& family) {
  const std::unique_ptr<FcPattern, Release> wanted(FcPatternCreate());
  const std::unique_ptr<FcObjectSet, Release> nothingElse(FcObjectSetCreate());
  const QByteArray name = family.toUtf8();
  FcPatternAddString(wanted.get(), FC_FAMILY, reinterpret_cast<const FcChar8*>(name.constData()));
  const std::unique_ptr<FcFontSet, Release> found(FcFontList(nullptr, wanted.get(), nothingElse.get()));
  return found && found->nfont > 0;
}

/// Adds the built-in fonts of families that the program does not have. Each is named after its family and,
/// behind a colon, its style.
void addBuiltInFonts() {
  const QDir fonts(QStringLiteral(":/fonts"));
  QStringList names = fonts.entryList();
  names.removeIf([](const QString& name) { return isInUse(name.section(u':', 0, 0)); });
  for (const QString& name : names)
    QFontDatabase::addApplicationFontFromData(QResource(fonts.filePath(name)).uncompressedData());
}

/// Makes the fonts of `configuration` those of the program, with the built-in ones of families that it lacks:
/// its own have more characters.
void use(const Configuration& configuration) {
  // Qt looks at another configuration only after fonts were taken away.
  QFontDatabase::removeAllApplicationFonts();
  FcConfigSetCurrent(configuration.get());
  addBuiltInFonts();
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
  return std::all_of(characters.begin(), characters.end(),
                     [](char32_t character) { return !QChar::isPrint(character) || isBuiltIn(character); });
}

QString foreignText(std::string_view text) {
  QString result = fromCore(text);
  if (!hasSystemFonts() && !isInBuiltInFonts(result)) use(Configuration(FcInitLoadConfigAndFonts()));
  return result;
}

}  // namespace vantorel
