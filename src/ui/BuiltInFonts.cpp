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

const FcChar8* bytes(const QByteArray& text) { return reinterpret_cast<const FcChar8*>(text.constData()); }

/// With the zero behind it that a resource lacks.
QByteArray contents(const QString& resource) {
  const QByteArray bare = QResource(resource).uncompressedData();
  return {bare.constData(), bare.size()};
}

/// Whether those of the system are in use, be there any or not: only their configuration comes from files.
bool hasSystemFonts() {
  const std::unique_ptr<FcStrList, Release> files(FcConfigGetConfigFiles(nullptr));
  return files && FcStrListNext(files.get()) != nullptr;
}

/// By any of its names: where the user speaks Chinese, that of a Chinese font may come first.
bool hasFamily(FcConfig* configuration, const QString& family) {
  if (FcConfigGetFonts(configuration, FcSetSystem) == nullptr) return false;
  const std::unique_ptr<FcPattern, Release> wanted(FcPatternCreate());
  const std::unique_ptr<FcObjectSet, Release> nothingElse(FcObjectSetCreate());
  FcPatternAddString(wanted.get(), FC_FAMILY, bytes(family.toUtf8()));
  const std::unique_ptr<FcFontSet, Release> found(FcFontList(configuration, wanted.get(), nothingElse.get()));
  return found && found->nfont > 0;
}

/// Adds the built-in fonts of families that `configuration` does not have: its own have more characters. Each
/// is named after its family and, behind a colon, its style. Their descriptions are built in too, so that
/// fontconfig need not read the fonts for them.
void addBuiltInFonts(FcConfig* configuration) {
  const QDir fonts(QStringLiteral(":/fonts"));
  const QDir descriptions(QStringLiteral(":/fontDescriptions"));
  QStringList names = fonts.entryList();
  names.removeIf([&](const QString& name) { return hasFamily(configuration, name.section(u':', 0, 0)); });
  FcConfigAppFontAddFile(configuration, bytes("/dev/null/none"));  // fails, but makes the set of fonts
  for (const QString& name : names) {
    FcPattern* const font = FcNameParse(bytes(contents(descriptions.filePath(name))));
    FcPatternAddString(font, FC_FILE, bytes(fonts.filePath(name).toUtf8()));
    FcFontSetAdd(FcConfigGetFonts(configuration, FcSetApplication), font);
  }
}

/// Makes the fonts of `configuration` those of the program, and the built-in ones.
void use(const Configuration& configuration) {
  addBuiltInFonts(configuration.get());
  FcConfigSetCurrent(configuration.get());
}

/// Makes Qt look for fonts anew, which it does after one of its own was taken away.
void forgetFonts() {
  QFontDatabase::removeApplicationFont(
      QFontDatabase::addApplicationFont(QStringLiteral(":/fonts/DejaVu Sans")));
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
  if (!hasSystemFonts() && !isInBuiltInFonts(result)) {
    forgetFonts();
    use(Configuration(FcInitLoadConfigAndFonts()));
  }
  return result;
}

}  // namespace vantorel
