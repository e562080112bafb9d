#include "AccessibleRole.h"

#include <QAccessibleWidget>
#include <QVariant>

namespace vantorel {

namespace {

constexpr auto roleProperty = "accessibleRole";

QAccessibleInterface* widgetWithRole(const QString& /*className*/, QObject* object) {
  if (object->dynamicPropertyNames().isEmpty()) return nullptr;  // most have none; a search takes longer
  const QVariant role = object->property(roleProperty);
  if (!role.isValid() || !object->isWidgetType()) return nullptr;
  return new QAccessibleWidget(qobject_cast<QWidget*>(object), static_cast<QAccessible::Role>(role.toInt()));
}

}  // namespace

void presentAs(QWidget* widget, QAccessible::Role role) {
  QAccessible::installFactory(widgetWithRole);  // Qt keeps it once
  widget->setProperty(roleProperty, static_cast<int>(role));
}

}  // namespace vantorel
