#pragma once

#include <QStringList>

namespace vantorel {

/// Those of `texts` that are the widest in a monospaced font, where a Chinese character is twice as wide as a
/// letter. It is enough to reserve room for these.
QStringList longestOf(const QStringList& texts);

}  // namespace vantorel
