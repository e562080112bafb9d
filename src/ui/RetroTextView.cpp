#include "RetroTextView.h"

#include <QEvent>
#include <QPainter>
#include <QPalette>

#include "AppTheme.h"
#include "PixelGrid.h"
#include "RetroScrollArea.h"
#include "Typography.h"

namespace vantorel {

namespace {

constexpr int outlineWidth = 2;

}  // namespace

RetroTextView::RetroTextView(QWidget* parent) : QPlainTextEdit(parent) {
  setReadOnly(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setTabChangesFocus(true);
  setUndoRedoEnabled(false);
  setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  setFont(textFont());
  setFrameShape(QFrame::Box);
  setLineWidth(outlineWidth);
  document()->setDocumentMargin(margin - frameWidth());
  setVerticalScrollBar(new RetroScrollBar(Qt::Vertical, this));
  QPalette colors = palette();
  colors.setColor(QPalette::Base, AppTheme::cardBackground());
  colors.setColor(QPalette::Text, AppTheme::text());
  colors.setColor(QPalette::Highlight, AppTheme::secondaryAccent());
  colors.setColor(QPalette::HighlightedText, Qt::white);
  setPalette(colors);
}

QFont RetroTextView::textFont() { return monospaced(captionSize); }

bool RetroTextView::event(QEvent* event) {
  const bool focusMoved = event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut;
  if (focusMoved) update();
  if (event->type() != QEvent::Paint) return QPlainTextEdit::event(event);
  QPainter painter(this);
  fillSharp(painter, rect(), AppTheme::cardBackground());
  paintOutline(painter, rect(), outlineWidth,
               hasFocus() ? AppTheme::secondaryAccent() : AppTheme::borderColor());
  return true;
}

}  // namespace vantorel
