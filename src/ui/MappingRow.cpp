#include "MappingRow.h"

#include <QKeyEvent>
#include <QPainter>

#include "AppTheme.h"
#include "BilingualText.h"
#include "Icons.h"
#include "PixelGrid.h"
#include "ReturnKey.h"
#include "TextLine.h"
#include "Typography.h"

namespace vantorel {
namespace {

constexpr int padding = 12;
constexpr int markerSize = 8;
constexpr int markerGap = 8;
constexpr int chevronSize = 10;
constexpr double chevronOpacity = 0.3;
constexpr double activeOpacity = 0.1;
constexpr double heldOpacity = 0.2;
constexpr double unmappedOpacity = 0.5;
constexpr int focusWidth = 2;

constexpr BilingualText chooseHelp{"Choose a key.", "选择按键。"};
constexpr BilingualText unmappedHelp{"Not mapped. Choose a key.", "未映射。选择按键。"};

constexpr int rightCellLeft = MappingRow::leftCellWidth + MappingRow::ruleWidth + padding;

QFont buttonFont() { return systemFont(13, QFont::Bold); }

QFont keyFont() { return systemFont(13, QFont::Black); }

}  // namespace

MappingRow::MappingRow(GamepadButton rowButton, QWidget* parent)
    : QAbstractButton(parent), button(rowButton) {
  setFixedHeight(rowHeight);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  setFocusPolicy(Qt::StrongFocus);
  describe();
}

void MappingRow::show(const Content& newContent) {
  if (newContent == content) return;
  content = newContent;
  describe();
  update();
}

QString MappingRow::buttonName() const { return fromCore(displayName(button, content.language)); }

QString MappingRow::keyName() const {
  return content.key ? fromCore(displayName(*content.key, content.language)) : QStringLiteral("---");
}

void MappingRow::describe() {
  setAccessibleName(buttonName() + QStringLiteral(": ") + keyName());
  setAccessibleDescription((content.key ? chooseHelp : unmappedHelp).in(content.language));
}

/// The list gives it all of its width, where the longest name of a key has room.
QSize MappingRow::sizeHint() const { return {2 * leftCellWidth, rowHeight}; }

void MappingRow::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  fillSharp(painter, rect(), Qt::white);
  if (content.isActive) fillSharp(painter, rect(), AppTheme::faded(AppTheme::accent(), activeOpacity));
  if (isDown()) fillSharp(painter, rect(), AppTheme::faded(AppTheme::secondaryAccent(), heldOpacity));
  paintButtonCell(painter);
  fillSharp(painter, QRectF(leftCellWidth, 0, ruleWidth, rowHeight), AppTheme::borderColor());
  paintKeyCell(painter);
  if (hasFocus()) paintOutline(painter, rect(), focusWidth, AppTheme::secondaryAccent());
}

void MappingRow::paintButtonCell(QPainter& painter) const {
  const QRectF marker(padding, (rowHeight - markerSize) / 2.0, markerSize, markerSize);
  fillSharp(painter, marker, content.isActive ? AppTheme::accent() : AppTheme::secondaryText());
  const double textLeft = marker.right() + markerGap;
  paintTextLine(painter, {textLeft, 0, leftCellWidth - textLeft, rowHeight}, buttonName(), buttonFont(),
                AppTheme::text());
}

void MappingRow::paintKeyCell(QPainter& painter) const {
  const QColor color =
      content.key ? AppTheme::secondaryAccent() : AppTheme::faded(AppTheme::secondaryText(), unmappedOpacity);
  const double right = width() - padding;
  paintTextLine(painter, QRectF(rightCellLeft, 0, right - rightCellLeft, rowHeight), keyName(), keyFont(),
                color);
  paintIcon(painter, Icon::chevron, QRectF(right - chevronSize, 0, chevronSize, rowHeight),
            AppTheme::faded(AppTheme::borderColor(), chevronOpacity));
}

void MappingRow::keyPressEvent(QKeyEvent* event) {
  if (!clickByReturnKey(*this, *event)) QAbstractButton::keyPressEvent(event);
}

}  // namespace vantorel
