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
  /// Of a text in `lineFont`, of which `lineLettering` is made: texts in one font share it.
  MeasuredText(const QString& content, const QFont& lineFont, const Lettering& lineLettering);

  /// Its width where nothing but its own line breaks ends a line.
  double unbrokenWidth() const { return unbroken.width(); }

  /// Its height in lines at most `width` points wide.
  double heightIn(double width) const;

  /// The width of its widest part that only the last resort would break.
  double widestPart() const;

  bool isOf(const QString& content, const QFont& lineFont) const {
    return content == text && hasFont(lineFont);
  }

  bool hasFont(const QFont& lineFont) const { return lineFont == font; }

 private:
  QString text;
  QFont font;
  Lettering lettering;
  QSizeF unbroken;
  mutable std::map<double, double> heights;  ///< by the width, of which there are few at a time
  mutable std::optional<double> widest;
};

/// `kept`, measured anew where it is not of `text` in `font`.
const MeasuredText& upToDate(std::optional<MeasuredText>& kept, const QString& text, const QFont& font);

}  // namespace vantorel
