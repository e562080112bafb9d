#pragma once

#include <QAbstractButton>
#include <QAccessibleWidget>

namespace vantorel {

/// A button as assistive technology sees it: its press clicks the button while that is enabled.
class AccessibleButton : public QAccessibleWidget {
 public:
  AccessibleButton(QAbstractButton* owner, QAccessible::Role role)
      : QAccessibleWidget(owner, role), button(owner) {}

  QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (button->isEnabled()) names.prepend(pressAction());
    return names;
  }

  void doAction(const QString& name) override {
    if (name == pressAction()) {
      button->click();
    } else {
      QAccessibleWidget::doAction(name);
    }
  }

 protected:
  const QAbstractButton& shownButton() const { return *button; }

 private:
  QAbstractButton* button;
};

}  // namespace vantorel
