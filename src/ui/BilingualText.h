#pragma once

#include <QString>
#include <QStringList>

#include "AppLanguage.h"

namespace vantorel {

/// A text of the interface in both languages, in UTF-8.
struct BilingualText {
  const char* english;
  const char* chinese;

  QString in(AppLanguage language) const {
    return QString::fromUtf8(language == AppLanguage::chinese ? chinese : english);
  }

  QStringList inBoth() const { return {in(AppLanguage::english), in(AppLanguage::chinese)}; }
};

}  // namespace vantorel
