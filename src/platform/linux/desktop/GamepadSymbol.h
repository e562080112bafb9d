#pragma once

#include <QPainterPath>
#include <QRectF>

namespace vantorel {

/// The drawing of a filled game controller, in `bounds` at its own proportions (3 : 2) and centred. The cross
/// and the buttons are left out of the filled body, so that whatever is behind shows through.
QPainterPath gamepadPath(const QRectF& bounds);

}  // namespace vantorel
