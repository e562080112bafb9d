#pragma once

namespace vantorel {

/// Makes Qt's registry of types; to be called before any other part of Qt is used. What is made first is
/// destroyed last: the thread of Qt's D-Bus part needs the registry until its own end, and complains on
/// standard error when it is gone before.
void makeQtTypeRegistry();

}  // namespace vantorel
