#pragma once

#include <QMenu>
#include <QPushButton>

namespace vantorel {

/// Shows `button`, which opens `menu`, to assistive technology as such a button: its press clicks it, and the
/// menu is its only child, as Qt leaves popup menus out of what it shows. Both must end together.
void presentAsMenuButton(QPushButton* button, QMenu* menu);

}  // namespace vantorel
