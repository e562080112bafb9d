#include "AccessibleMenuButton.h"

#include <QAccessibleWidget>
#include <QVariant>

namespace vantorel {

namespace {

constexpr auto menuProperty = "accessibleMenu";

class AccessibleMenuButton : public QAccessibleWidget {
 public:
  AccessibleMenuButton(QPushButton* widget, QMenu* itsMenu)
      : QAccessibleWidget(widget, QAccessible::ButtonMenu), button(widget), menu(itsMenu) {}

  int childCount() const override { return 1; }

  QAccessibleInterface* child(int index) const override {
    return index == 0 ? QAccessible::queryAccessibleInterface(menu) : nullptr;
  }

  int indexOfChild(const QAccessibleInterface* child) const override {
    return child->object() == menu ? 0 : -1;
  }

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.hasPopup = true;
    return state;
  }

  QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (button->isEnabled()) names.prepend(pressAction());
    return names;
  }

  void doAction(const QString& actionName) override {
    if (actionName == pressAction()) {
      button->click();
    } else {
      QAccessibleWidget::doAction(actionName);
    }
  }

 private:
  QPushButton* button;
  QMenu* menu;
};

QAccessibleInterface* menuButton(const QString& /*className*/, QObject* object) {
  auto* const menu = object->property(menuProperty).value<QMenu*>();
  return menu == nullptr ? nullptr : new AccessibleMenuButton(qobject_cast<QPushButton*>(object), menu);
}

}  // namespace

void presentAsMenuButton(QPushButton* button, QMenu* menu) {
  QAccessible::installFactory(menuButton);  // Qt keeps it once
  button->setProperty(menuProperty, QVariant::fromValue(menu));
}

}  // namespace vantorel
