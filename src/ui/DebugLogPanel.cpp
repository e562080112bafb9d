#include "DebugLogPanel.h"

#include <QScrollBar>
#include <QTextCursor>
#include <QTextDocument>
#include <QTimer>
#include <algorithm>
#include <cmath>
#include <memory>

#include "BilingualText.h"
#include "BuiltInFonts.h"
#include "Lettering.h"

namespace vantorel {

namespace {

constexpr int lineCapacity = 20;
constexpr int lineSpacing = 8;
/// With characters of the fonts that make a line high; an emoji fits into it.
constexpr const char* tallestLine = "A中";

constexpr const char* tagText = "DEBUG_LOG";
constexpr BilingualText name{"Debug log", "调试日志"};
constexpr BilingualText hint{"Shows what the program did last, the newest line first.",
                             "显示程序最近的操作，最新的一行在最前。"};

/// For a full log of lines that do not wrap. The card never grows; longer logs scroll.
int logHeight() {
  constexpr int spare = 1;  // without it the view would scroll by a line
  const double line = Lettering(RetroTextView::textFont()).size(QString::fromUtf8(tallestLine)).height();
  return static_cast<int>(std::ceil(lineCapacity * line)) + 2 * RetroTextView::margin + spare;
}

/// How many lines stand in `now` before those that were there `before`, as far as they are still there.
qsizetype newLines(const QStringList& now, const QStringList& before) {
  qsizetype fresh = 0;
  while (fresh < now.size() && !std::equal(now.begin() + fresh, now.end(), before.begin(),
                                           before.begin() + std::min(before.size(), now.size() - fresh))) {
    ++fresh;
  }
  return fresh;
}

}  // namespace

DebugLogPanel::DebugLogPanel(WindowState& windowState, QWidget* parent)
    : CardFrame(retroCard(AppTheme::borderColor()), parent),
      state(windowState),
      tag(new SectionTag(QString::fromUtf8(tagText), this)) {
  contentLayout()->setSpacing(lineSpacing);
  contentLayout()->addWidget(tag);
  contentLayout()->addSpacing(lineSpacing + logHeight());
}

void DebugLogPanel::showEvent(QShowEvent* /*event*/) {
  if (log == nullptr) window()->installEventFilter(this);
}

/// Waits for the first frame of the window: the log itself comes after it, as its emoji take long to read.
bool DebugLogPanel::eventFilter(QObject* shownWindow, QEvent* event) {
  if (event->type() == QEvent::Paint) {
    shownWindow->removeEventFilter(this);
    QTimer::singleShot(0, this, &DebugLogPanel::makeLog);
  }
  return false;
}

void DebugLogPanel::makeLog() {
  if (log != nullptr) return;  // hidden and shown again meanwhile
  const std::unique_ptr<QLayoutItem> emptyRoom(contentLayout()->takeAt(contentLayout()->count() - 1));
  log = new RetroTextView(this);
  log->setFixedHeight(logHeight());
  contentLayout()->addWidget(log);
  log->show();  // at once, as its panel shows already
  nameUpdates.follow([this] { describe(); }, state.localization.currentLanguage());
  lineUpdates.follow([this] { refresh(); }, state.controllerManager.debugLogs);
}

void DebugLogPanel::describe() {
  const AppLanguage language = state.localization.currentLanguage();
  tag->setToolTip(hint.in(language));
  log->setAccessibleName(name.in(language));
}

void DebugLogPanel::refresh() {
  QStringList lines;
  for (const std::string& line : state.controllerManager.debugLogs.get()) lines += foreignText(line);
  showLines(lines);
}

void DebugLogPanel::showLines(const QStringList& lines) {
  if (lines == shown) return;
  const qsizetype fresh = newLines(lines, shown);
  if (fresh == lines.size()) {
    log->setPlainText(lines.join(u'\n'));
  } else {
    const bool wasAtTop = log->verticalScrollBar()->value() == 0;
    dropLast(shown.size() + fresh - lines.size());
    if (fresh > 0) prepend(lines.first(fresh));
    if (wasAtTop) log->verticalScrollBar()->setValue(0);
  }
  shown = lines;
}

void DebugLogPanel::prepend(const QStringList& lines) {
  QTextCursor top(log->document());
  top.insertText(lines.join(u'\n') + u'\n');
}

void DebugLogPanel::dropLast(qsizetype lines) {
  QTextCursor end(log->document());
  end.movePosition(QTextCursor::End);
  for (qsizetype line = 0; line < lines; ++line) {
    end.movePosition(QTextCursor::StartOfBlock, QTextCursor::KeepAnchor);
    end.movePosition(QTextCursor::PreviousCharacter, QTextCursor::KeepAnchor);
  }
  end.removeSelectedText();
}

}  // namespace vantorel
