#include "KeyGrid.h"

#include <QKeyEvent>
#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <utility>

#include "AppTheme.h"
#include "KeyButton.h"
#include "KeySections.h"
#include "TextLine.h"
#include "Typography.h"

namespace vantorel {
namespace {

constexpr int sectionGap = 24;
constexpr int keyGap = 4;  // between rows, and between the keys of a row

int heightOf(const KeySection& section) {
  const int rows = rowCount(section);
  return KeyGrid::headingHeight + KeyGrid::headingGap + rows * KeyButton::keyHeight + (rows - 1) * keyGap;
}

/// The place of key number `index` of a section that begins at the upper left corner of `area`. Keys are
/// whole points wide; what does not divide evenly is shared among them, and the gaps stay equal.
QRect keyRect(const QRect& area, int index, int keysPerRow) {
  const auto columnLeft = [&](int column) { return (area.width() + keyGap) * column / keysPerRow; };
  const int column = index % keysPerRow;
  const int row = index / keysPerRow;
  return {area.left() + columnLeft(column), area.top() + row * (KeyButton::keyHeight + keyGap),
          columnLeft(column + 1) - columnLeft(column) - keyGap, KeyButton::keyHeight};
}

}  // namespace

KeyGrid::KeyGrid(std::optional<KeyboardKey> currentMapping, const std::function<void(KeyboardKey)>& onSelect,
                 QWidget* parent)
    : QWidget(parent) {
  for (const KeySection& section : keySections()) {
    titles.push_back(
        new TextLine(headingHeight, systemFont(12, QFont::Black), AppTheme::borderColor(), this));
    for (const KeyboardKey key : section.keys) {
      auto* button = new KeyButton(key, key == currentMapping, this);
      connect(button, &KeyButton::clicked, this, [onSelect, key] { onSelect(key); });
      buttons.push_back(button);
    }
  }
}

void KeyGrid::showLanguage(AppLanguage language) {
  for (std::size_t index = 0; index < titles.size(); ++index) {
    titles[index]->setText(QStringLiteral("> ") + fromCore(title(keySections()[index], language)));
  }
  for (KeyButton* button : buttons) button->showName(language);
}

KeyButton* KeyGrid::key(KeyboardKey wanted) const {
  return *std::find_if(buttons.begin(), buttons.end(),
                       [wanted](const KeyButton* button) { return button->key() == wanted; });
}

int KeyGrid::contentHeight() {
  int height = -sectionGap;
  for (const KeySection& section : keySections()) height += sectionGap + heightOf(section);
  return height;
}

QSize KeyGrid::sizeHint() const {
  const QMargins margins = contentsMargins();
  return {margins.left() + margins.right(), margins.top() + contentHeight() + margins.bottom()};
}

void KeyGrid::resizeEvent(QResizeEvent* /*event*/) { arrange(); }

void KeyGrid::arrange() {
  QRect area = contentsRect();
  auto button = buttons.begin();
  for (std::size_t number = 0; number < titles.size(); ++number) {
    const KeySection& section = keySections()[number];
    titles[number]->setGeometry(area.left(), area.top(), area.width(), headingHeight);
    const QRect keyArea = area.adjusted(0, headingHeight + headingGap, 0, 0);
    for (int index = 0; index < static_cast<int>(section.keys.size()); ++index, ++button) {
      (*button)->setGeometry(keyRect(keyArea, index, section.keysPerRow));
    }
    area.setTop(area.top() + heightOf(section) + sectionGap);
  }
}

void KeyGrid::keyPressEvent(QKeyEvent* event) {
  KeyButton* target = nullptr;
  switch (event->key()) {
    case Qt::Key_Left:
      target = neighbour(-1);
      break;
    case Qt::Key_Right:
      target = neighbour(1);
      break;
    case Qt::Key_Up:
      target = inNextRow(-1);
      break;
    case Qt::Key_Down:
      target = inNextRow(1);
      break;
    case Qt::Key_Home:
      target = buttons.front();
      break;
    case Qt::Key_End:
      target = buttons.back();
      break;
    default:
      QWidget::keyPressEvent(event);
      return;
  }
  if (target != nullptr) target->setFocus(Qt::OtherFocusReason);
}

KeyButton* KeyGrid::focusedKey() const {
  const auto found = std::find_if(buttons.begin(), buttons.end(),
                                  [](const KeyButton* button) { return button->hasFocus(); });
  return found == buttons.end() ? nullptr : *found;
}

/// The key `step` places further in reading order, or null.
KeyButton* KeyGrid::neighbour(int step) const {
  const auto found = std::find(buttons.begin(), buttons.end(), focusedKey());
  if (found == buttons.end()) return nullptr;
  const std::ptrdiff_t index = (found - buttons.begin()) + step;
  if (index < 0 || index >= static_cast<std::ptrdiff_t>(buttons.size())) return nullptr;
  return buttons[static_cast<std::size_t>(index)];
}

/// The key of the row below (`direction` 1) or above (-1) that is nearest to the focused one, or null.
KeyButton* KeyGrid::inNextRow(int direction) const {
  const KeyButton* from = focusedKey();
  if (from == nullptr) return nullptr;
  const auto distance = [&](const KeyButton* button) {
    return std::pair(direction * (button->y() - from->y()),
                     std::abs(button->geometry().center().x() - from->geometry().center().x()));
  };
  KeyButton* nearest = nullptr;
  for (KeyButton* button : buttons) {
    const bool isThere = distance(button).first > 0;
    if (isThere && (nearest == nullptr || distance(button) < distance(nearest))) nearest = button;
  }
  return nearest;
}

}  // namespace vantorel
