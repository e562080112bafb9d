#include "MeasuredText.h"

#include <limits>

#include "WrappedText.h"

namespace vantorel {

namespace {

/// A window that is drawn larger or smaller asks for one width after the other.
constexpr std::size_t heightsToKeep = 8;

}  // namespace

MeasuredText::MeasuredText(const QString& content, const Lettering& lineLettering)
    : text(content),
      lettering(lineLettering),
      unbroken(WrappedText(text, lettering, std::numeric_limits<double>::infinity()).size()) {}

double MeasuredText::heightIn(double width) const {
  if (unbroken.width() <= width) return unbroken.height();
  if (const auto known = heights.find(width); known != heights.end()) return known->second;
  if (heights.size() == heightsToKeep) heights.clear();
  return heights[width] = WrappedText(text, lettering, width).size().height();
}

double MeasuredText::widestPart() const {
  if (!widest) widest = vantorel::widestPart(text, lettering);
  return *widest;
}

const MeasuredText& upToDate(std::optional<MeasuredText>& kept, const QString& text, const QFont& font) {
  if (!kept || !kept->isOf(text, font)) kept.emplace(text, Lettering(font));
  return *kept;
}

}  // namespace vantorel
