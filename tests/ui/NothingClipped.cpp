#include "NothingClipped.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLabel>
#include <vector>

namespace vantorel {

namespace {

/// What stands in `widget` and is shown.
std::vector<QWidget*> visibleChildren(const QWidget& widget) {
  std::vector<QWidget*> children;
  for (QWidget* const child : widget.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
    const bool isOverlay = child->testAttribute(Qt::WA_TransparentForMouseEvents);
    if (child->isVisible() && !isOverlay) children.push_back(child);
  }
  return children;
}

}  // namespace

std::string describe(const QWidget& widget) {
  std::string text = widget.metaObject()->className();
  if (const auto* const label = qobject_cast<const QLabel*>(&widget))
    text += " " + label->text().toStdString();
  if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget)) {
    text += " " + button->text().toStdString();
  }
  return text;
}

void expectNothingClipped(const QWidget& widget) {
  const std::vector<QWidget*> children = visibleChildren(widget);
  for (const QWidget* const child : children) {
    EXPECT_TRUE(widget.rect().contains(child->geometry())) << describe(*child);
    EXPECT_GE(child->height(), child->minimumSizeHint().height()) << describe(*child);
    if (child->hasHeightForWidth()) {
      EXPECT_GE(child->height(), child->heightForWidth(child->width())) << describe(*child);
    }
    for (const QWidget* const other : children) {
      EXPECT_TRUE(other == child || !other->geometry().intersects(child->geometry()))
          << describe(*child) << " over " << describe(*other);
    }
    expectNothingClipped(*child);
  }
}

}  // namespace vantorel
