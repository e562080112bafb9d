#include "KeyPickerView.h"

#include <QFocusEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include "AccessibleRole.h"
#include "AppTheme.h"
#include "BilingualText.h"
#include "CloseButton.h"
#include "KeyButton.h"
#include "KeyGrid.h"
#include "PixelGrid.h"
#include "RetroScrollArea.h"
#include "TextLine.h"
#include "Typography.h"

namespace vantorel {
namespace {

constexpr int borderWidth = 4;
constexpr int barPadding = 16;
constexpr int titleHeight = 18;
constexpr int barHeight = barPadding + titleHeight + barPadding;
constexpr int padding = 24;  // around the sections, from the edge of the panel

constexpr BilingualText taskText{"SELECT_KEY", "选择按键"};

/// Focusing a key scrolls this much around it into view: the heading above a first row, the padding below
/// the last one.
constexpr int viewMargin = padding + KeyGrid::headingHeight + KeyGrid::headingGap;

}  // namespace

KeyPickerView::KeyPickerView(GamepadButton gamepadButton, std::optional<KeyboardKey> currentMapping,
                             const std::function<void(KeyboardKey)>& onSelect, std::function<void()> dismiss,
                             QWidget* parent)
    : QWidget(parent),
      editedButton(gamepadButton),
      title(new TextLine(titleHeight, monospaced(14, QFont::Black), Qt::white, this)),
      closer(new CloseButton(this)),
      area(new RetroScrollArea(this)),
      grid(new KeyGrid(currentMapping, onSelect)) {
  presentAs(this, QAccessible::Dialog);
  connect(closer, &CloseButton::clicked, this, [dismiss = std::move(dismiss)] { dismiss(); });
  // The border and the scroll bar lie within the padding, so that it is the same at both sides.
  const int scrollBarWidth = area->verticalScrollBar()->sizeHint().width();
  grid->setContentsMargins(padding - borderWidth, padding, padding - borderWidth - scrollBarWidth,
                           padding - borderWidth);
  grid->setFixedHeight(grid->sizeHint().height());
  area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  area->setFocusPolicy(Qt::NoFocus);
  area->setContent(grid);
  for (KeyButton* key : grid->keys()) key->installEventFilter(this);
  resize(fullSize);
  arrange();
}

void KeyPickerView::showLanguage(AppLanguage language) {
  const QString buttonName = fromCore(displayName(editedButton, language)).toUpper();
  title->setText(taskText.in(language) + QStringLiteral("::") + buttonName);
  setAccessibleName(title->text());
  closer->showName(language);
  grid->showLanguage(language);
}

void KeyPickerView::focusCurrentKey() {
  const auto& keys = grid->keys();
  const auto current =
      std::find_if(keys.begin(), keys.end(), [](const KeyButton* key) { return key->isChecked(); });
  (current == keys.end() ? keys.front() : *current)->setFocus(Qt::OtherFocusReason);
}

void KeyPickerView::moveFocus(bool next) {
  std::vector<QWidget*> controls = {closer};
  controls.insert(controls.end(), grid->keys().begin(), grid->keys().end());
  const auto focused = std::find_if(controls.begin(), controls.end(),
                                    [](const QWidget* control) { return control->hasFocus(); });
  const std::size_t count = controls.size();
  const auto index = static_cast<std::size_t>(focused - controls.begin());
  const std::size_t target = focused == controls.end() ? 0 : (index + (next ? 1 : count - 1)) % count;
  controls[target]->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
}

/// Brings a key into view when the keyboard comes to it. A key under the mouse stays where it is, or the
/// click would end beside it.
bool KeyPickerView::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn) {
    const auto reason = static_cast<QFocusEvent*>(event)->reason();
    if (reason != Qt::MouseFocusReason) reveal(qobject_cast<QWidget*>(watched)->geometry());
  }
  return QWidget::eventFilter(watched, event);
}

void KeyPickerView::reveal(const QRect& key) {
  const int viewHeight = area->viewport()->height();
  const int margin = std::clamp((viewHeight - key.height()) / 2, 0, viewMargin);
  const int lowest = key.bottom() + 1 + margin - viewHeight;
  QScrollBar* const bar = area->verticalScrollBar();
  bar->setValue(std::clamp(bar->value(), lowest, std::max(lowest, key.top() - margin)));
}

void KeyPickerView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  fillSharp(painter, rect(), AppTheme::cardBackground());
  paintOutline(painter, rect(), borderWidth, AppTheme::borderColor());
  fillSharp(painter, QRectF(0, 0, width(), barHeight), AppTheme::borderColor());
}

void KeyPickerView::resizeEvent(QResizeEvent* /*event*/) { arrange(); }

void KeyPickerView::arrange() {
  const int closerWidth = closer->sizeHint().width();
  closer->setGeometry(width() - closerWidth, 0, closerWidth, barHeight);
  title->setGeometry(barPadding, barPadding, width() - barPadding - closerWidth, titleHeight);
  area->setGeometry(borderWidth, barHeight, width() - 2 * borderWidth, height() - barHeight - borderWidth);
}

}  // namespace vantorel
