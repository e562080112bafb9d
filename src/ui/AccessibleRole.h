#pragma once

#include <QAccessible>
#include <QWidget>

namespace vantorel {

/// Shows `widget`, a plain QWidget, to assistive technology as a `role`; its name is the accessible name.
void presentAs(QWidget* widget, QAccessible::Role role);

}  // namespace vantorel
