#pragma once

#include <QFont>
#include <QSizeF>
#include <QString>
#include <map>
#include <optional>

#include "Lettering.h"

namespace vantorel {

/// How much room a text takes, for layouts that ask again and again: each answer is found once.
class MeasuredText {
 public:
  /// Texts in one font can share a lettering.
  MeasuredText(const QString& content, const Lettering& lineLettering);

  /// Its width where nothing but its own line breaks ends a line.
  double unbrokenWidth() const { return unbroken.width(); }

  /// Its height in lines at most `width` points wide.
  double heightIn(double width) const;

  /// The width of its widest part that only the last resort would break.
  double widestPart() const;

  bool isOf(const QString& content, const QFont& lineFont) const {
    return content == text && hasFont(lineFont);
  }

  bool hasFont(const QFont& lineFont) const { return lettering.isIn(lineFont); }

 private:
  QString text;
  Lettering lettering;
  QSizeF unbroken;
  mutable std::map<double, double> heights;  ///< by the width, of which there are few at a time
  mutable std::optional<double> widest;
};

/// `kept`, measured anew where it is not of `text` in `font`.
const MeasuredText& upToDate(std::optional<MeasuredText>& kept, const QString& text, const QFont& font);

}  // namespace vantorel
