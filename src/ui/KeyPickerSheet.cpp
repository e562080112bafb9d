#include "KeyPickerSheet.h"

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QPainter>
#include <utility>

#include "AppTheme.h"
#include "HardShadow.h"
#include "KeyPickerView.h"
#include "PixelGrid.h"

namespace vantorel {
namespace {

constexpr double dimming = 0.1;
constexpr int shadowOffset = 12;
constexpr double shadowOpacity = 0.1;

}  // namespace

KeyPickerSheet::KeyPickerSheet(WindowState& windowState, QWidget* window)
    : QWidget(window), state(windowState) {
  setAttribute(Qt::WA_NoMousePropagation);  // nothing that is done here reaches the window behind
  hide();
  window->installEventFilter(this);
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { keepFocus(now); });
  observations = {
      state.selectedGamepadButton.observe([this] { followSelection(); }),
      state.localization.currentLanguage().observe([this] { followLanguage(); }),
  };
  followSelection();
}

void KeyPickerSheet::followSelection() {
  const auto button = state.selectedGamepadButton.get();
  if (!button) {
    removePicker();
  } else if (view == nullptr || view->gamepadButton() != *button) {
    showPicker(*button);
  }
}

void KeyPickerSheet::followLanguage() {
  if (view != nullptr) view->showLanguage(state.localization.currentLanguage());
}

void KeyPickerSheet::showPicker(GamepadButton button) {
  if (view == nullptr) {
    focusBefore = parentWidget()->focusWidget();
  } else {
    view->deleteLater();
    view->hide();
  }
  view = new KeyPickerView(
      button, state.mappingStore.getKeyboardKey(button), [this](KeyboardKey key) { state.chooseKey(key); },
      [this] { state.closeKeyPicker(); }, this);
  followLanguage();
  setGeometry(parentWidget()->rect());
  placePicker();
  view->show();
  raise();
  show();
  view->focusCurrentKey();
}

void KeyPickerSheet::removePicker() {
  if (view == nullptr) return;
  KeyPickerView* closed = std::exchange(view, nullptr);
  // The keyboard goes back before the picker hides: hiding would send it to any widget of the window.
  if (focusBefore != nullptr) focusBefore->setFocus(Qt::OtherFocusReason);
  hide();
  closed->hide();
  closed->deleteLater();  // later: a click on one of its buttons may have brought us here
}

/// Takes the keyboard back when it is given to a widget of the window behind.
void KeyPickerSheet::keepFocus(QWidget* focused) {
  if (view == nullptr || focused == nullptr) return;
  const bool isBehind = focused->window() == window() && !isAncestorOf(focused);
  if (isBehind) view->focusCurrentKey();
}

bool KeyPickerSheet::focusNextPrevChild(bool next) {
  if (view == nullptr) return false;
  view->moveFocus(next);
  return true;
}

void KeyPickerSheet::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    state.closeKeyPicker();
  } else {
    QWidget::keyPressEvent(event);
  }
}

bool KeyPickerSheet::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize) setGeometry(parentWidget()->rect());
  return QWidget::eventFilter(watched, event);
}

void KeyPickerSheet::resizeEvent(QResizeEvent* /*event*/) { placePicker(); }

/// In the middle of the window. Where that is too small, the picker shrinks and keeps room for its shadow.
void KeyPickerSheet::placePicker() {
  if (view == nullptr) return;
  const QSize room = size() - 2 * QSize(shadowOffset, shadowOffset);
  QRect place({0, 0}, KeyPickerView::fullSize.boundedTo(room));
  place.moveTopLeft({(width() - place.width()) / 2, (height() - place.height()) / 2});
  view->setGeometry(place);
}

void KeyPickerSheet::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  fillSharp(painter, rect(), AppTheme::faded(Qt::black, dimming));
  if (view != nullptr) {
    paintHardShadow(painter, view->geometry(), {Qt::black, shadowOpacity, shadowOffset});
  }
}

}  // namespace vantorel
