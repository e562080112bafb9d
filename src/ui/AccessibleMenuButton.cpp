#include "AccessibleMenuButton.h"

#include <QVariant>

#include "AccessibleButton.h"

namespace vantorel {

namespace {

constexpr auto menuProperty = "accessibleMenu";

class AccessibleMenuButton : public AccessibleButton {
 public:
  AccessibleMenuButton(QPushButton* owner, QMenu* itsMenu)
      : AccessibleButton(owner, QAccessible::ButtonMenu), menu(itsMenu) {}

  int childCount() const override { return 1; }

  QAccessibleInterface* child(int index) const override {
    return index == 0 ? QAccessible::queryAccessibleInterface(menu) : nullptr;
  }

  int indexOfChild(const QAccessibleInterface* child) const override {
    return child->object() == menu ? 0 : -1;
  }

  QAccessible::State state() const override {
    QAccessible::State state = AccessibleButton::state();
    state.hasPopup = true;
    return state;
  }

 private:
  QMenu* menu;
};

QAccessibleInterface* menuButton(const QString& /*className*/, QObject* object) {
  auto* const button = qobject_cast<QPushButton*>(object);
  auto* const menu = button == nullptr ? nullptr : button->property(menuProperty).value<QMenu*>();
  return menu == nullptr ? nullptr : new AccessibleMenuButton(button, menu);
}

}  // namespace

void presentAsMenuButton(QPushButton* button, QMenu* menu) {
  QAccessible::installFactory(menuButton);  // Qt keeps it once
  button->setProperty(menuProperty, QVariant::fromValue(menu));
}

}  // namespace vantorel
