#pragma once

#include <QColor>
#include <QStringView>

namespace vantorel {

/// The sRGB colour that `hex` writes as RGB, RRGGBB or AARRGGBB; what is neither letter nor digit around it
/// ("#", blanks) does not count. Never fails: a text of any other length gives a colour that is practically
/// invisible (red and green 1/255, blue 0, opacity 1/255), and what is no hexadecimal digit ends the number.
QColor colorFromHex(QStringView hex);

}  // namespace vantorel
