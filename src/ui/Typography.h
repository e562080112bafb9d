#pragma once

#include <QFont>
#include <QString>

namespace vantorel {

inline constexpr int bodySize = 13;     ///< text that asks for no size of its own, in points
inline constexpr int captionSize = 10;  ///< captions and labels of switches, in points

/// The family that draws the Chinese in every font of the window; clear in small sizes, also in bold.
inline const QString chineseFamily = QStringLiteral("WenQuanYi Micro Hei");

/// The monospaced font of the window at a size in points, which are logical pixels, with families that have
/// Chinese and emoji behind it. All of them are built in.
QFont monospaced(int points = bodySize, QFont::Weight weight = QFont::Normal);

/// The proportional font of the mapping list and the key picker, with the same families behind it.
QFont systemFont(int points = bodySize, QFont::Weight weight = QFont::Normal);

/// `font` in the heaviest weight that its family has, where it asks for more: Qt loads each weight that it is
/// asked for as a font of its own, though it draws them alike.
QFont asDrawn(QFont font);

}  // namespace vantorel
