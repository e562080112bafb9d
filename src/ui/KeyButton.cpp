#include "KeyButton.h"

#include <QKeyEvent>
#include <QPainter>

#include "AccessibleButton.h"
#include "AppTheme.h"
#include "PixelGrid.h"
#include "ReturnKey.h"
#include "TextLine.h"
#include "Typography.h"

namespace vantorel {
namespace {

constexpr int borderWidth = 2;
constexpr int focusWidth = 2;
constexpr double heldOpacity = 0.2;

/// The key as assistive technology sees it: a push button that may be checked, not a check box.
class AccessibleKey : public AccessibleButton {
 public:
  explicit AccessibleKey(KeyButton* owner) : AccessibleButton(owner, QAccessible::Button) {}

  QAccessible::State state() const override {
    QAccessible::State result = AccessibleButton::state();
    result.checkable = true;
    result.checked = shownButton().isChecked();
    result.pressed = shownButton().isDown();
    return result;
  }
};

QAccessibleInterface* accessibleKey(const QString& /*className*/, QObject* object) {
  auto* button = qobject_cast<KeyButton*>(object);
  return button != nullptr ? new AccessibleKey(button) : nullptr;
}

}  // namespace

KeyButton::KeyButton(KeyboardKey shownKey, bool isCurrent, QWidget* parent)
    : QAbstractButton(parent), keyboardKey(shownKey) {
  QAccessible::installFactory(accessibleKey);  // Qt keeps it once
  setCheckable(true);
  setChecked(isCurrent);
  setFocusPolicy(Qt::StrongFocus);
  setFont(systemFont(11, QFont::Bold));
}

void KeyButton::showName(AppLanguage language) {
  setText(fromCore(displayName(keyboardKey, language)));
  setAccessibleName(text());
}

QSize KeyButton::sizeHint() const {
  return {fontMetrics().horizontalAdvance(text()) + 4 * borderWidth, keyHeight};
}

void KeyButton::paintEvent(QPaintEvent* /*event*/) {
  const QColor white = Qt::white;
  QPainter painter(this);
  fillSharp(painter, rect(), isChecked() ? AppTheme::secondaryAccent() : white);
  if (isDown()) fillSharp(painter, rect(), AppTheme::faded(AppTheme::borderColor(), heldOpacity));
  paintOutline(painter, rect(), borderWidth, AppTheme::borderColor());
  if (hasFocus()) {
    paintOutline(painter, insideOutline(painter, rect(), borderWidth), focusWidth,
                 isChecked() ? white : AppTheme::secondaryAccent());
  }
  paintTextLine(painter, rect(), text(), font(), isChecked() ? white : AppTheme::text(), Qt::AlignHCenter);
}

/// The Return key chooses as well, but not the repeated press of the one that opened the picker. The arrow
/// keys belong to the picker.
void KeyButton::keyPressEvent(QKeyEvent* event) {
  if (clickByReturnKey(*this, *event)) return;
  switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
      event->ignore();
      break;
    default:
      QAbstractButton::keyPressEvent(event);
  }
}

}  // namespace vantorel
