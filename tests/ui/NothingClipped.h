#pragma once

#include <QWidget>
#include <string>

namespace vantorel {

/// The kind of a widget and its text, for the message of a failure.
std::string describe(const QWidget& widget);

/// Checks that everything in `widget` has the room that it needs, within `widget` and beside its siblings.
void expectNothingClipped(const QWidget& widget);

}  // namespace vantorel
