#pragma once

#include <QString>
#include <string_view>

namespace vantorel {

/// Makes the fonts that the program brings along its only ones, so that it starts without a look at those of
/// the system, which may be thousands, and looks the same everywhere. They have the characters of all its own
/// texts. To be called once the QGuiApplication is there, before anything asks Qt for a font.
void useBuiltInFonts();

/// Whether the built-in fonts have all characters of `text`.
bool isInBuiltInFonts(const QString& text);

/// A text, in UTF-8, that is not the program's own, such as the name of a device. At the first character that
/// the built-in fonts lack, those of the system come in beside them.
QString foreignText(std::string_view text);

}  // namespace vantorel
