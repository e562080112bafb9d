#pragma once

#include <QColor>
#include <QIcon>
#include <QPainter>
#include <QRectF>
#include <string>

namespace vantorel {

/// A system symbol drawn as a template image: in the colour that reads well on the bar behind it, with a thin
/// outline in the opposite colour for a bar that is not as it was thought to be.
class TemplateIcon {
 public:
  /// A symbol that is not known draws nothing.
  explicit TemplateIcon(const std::string& symbolName = "");

  /// Paints it into `bounds`, for a bar of the colour `background`.
  void paint(QPainter& painter, const QRectF& bounds, const QColor& background) const;

  /// It in all usual sizes.
  QIcon icon(const QColor& background) const;

 private:
  bool isKnown;
};

}  // namespace vantorel
