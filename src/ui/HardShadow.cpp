#include "HardShadow.h"

#include "AppTheme.h"
#include "PixelGrid.h"

namespace vantorel {

void paintHardShadow(QPainter& painter, const QRectF& rect, const HardShadow& shadow) {
  fillSharp(painter, rect.translated(shadow.offset, shadow.offset),
            AppTheme::faded(shadow.color, shadow.opacity));
}

}  // namespace vantorel
