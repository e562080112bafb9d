#pragma once

#include <QStringList>
#include <functional>

#include "AppLanguage.h"

namespace vantorel {

/// Those of `texts` that are the widest in the monospaced font, where a letter takes three fifths of its size
/// and a Chinese character all of it. It is enough to reserve room for these.
QStringList longestOf(const QStringList& texts);

/// The same of the texts in each language: the characters of one may be higher than those of another.
QStringList longestInEach(const std::function<QStringList(AppLanguage language)>& textsIn);

}  // namespace vantorel
