#include "HeaderPanel.h"

#include <QVBoxLayout>

#include "BilingualText.h"
#include "Icons.h"
#include "Typography.h"

namespace vantorel {

namespace {

constexpr int iconSize = 48;
constexpr int titleSize = 26;
constexpr int statusSize = 12;
constexpr int columnSpacing = 20;
constexpr int lineSpacing = 4;

constexpr BilingualText titleText{"VANTOREL.EXE", "万托雷.EXE"};
constexpr BilingualText statusText{"> STATUS: ONLINE | VERSION " VANTOREL_VERSION,
                                   "> 状态: 在线 | 版本 " VANTOREL_VERSION};
constexpr const char* hotKeyTagText = "GLOBAL_HOTKEY";
constexpr BilingualText hotKeyText{"⌘ + ⇧ + M to toggle", "⌘ + ⇧ + M 快速切换"};
constexpr BilingualText hotKeyTooltip{"Switches the mapping from any program; ⌘ is the Super key here.",
                                      "在任何程序中切换映射；⌘ 在这里是 Super 键。"};

CardStyle heavyCard() {
  CardStyle style;
  style.padding = 20;
  style.outlineWidth = 4;
  style.shadowColor = Qt::black;
  style.shadowOpacity = 0.08;
  style.shadowOffset = 8;
  return style;
}

}  // namespace

HeaderPanel::HeaderPanel(WindowState& windowState, QWidget* parent)
    : CardFrame(heavyCard(), parent),
      state(windowState),
      title(new WrappingLabel(monospaced(titleSize, QFont::Black), AppTheme::text(), this)),
      status(new WrappingLabel(monospaced(statusSize), AppTheme::secondaryText(), this)),
      hotKeyTag(new SectionTag(QString::fromUtf8(hotKeyTagText), this)),
      hotKeyHint(new WrappingLabel(monospaced(statusSize, QFont::Bold), AppTheme::text(), this)) {
  title->reserveFor(titleText.inBoth());
  status->reserveFor(statusText.inBoth());
  hotKeyHint->reserveFor(hotKeyText.inBoth());
  auto* row = new QHBoxLayout;
  row->setSpacing(columnSpacing);
  row->addWidget(new IconView(Icon::controller, iconSize, AppTheme::accent(), this));
  row->addLayout(makeTitleColumn(), 1);
  row->addLayout(makeHotKeyColumn());
  row->addWidget(new LanguageMenu(state, this), 0, Qt::AlignVCenter);
  contentLayout()->addLayout(row);
  updates.follow([this] { refresh(); }, state.localization.currentLanguage());
}

QLayout* HeaderPanel::makeTitleColumn() {
  auto* column = new QVBoxLayout;
  column->setSpacing(lineSpacing);
  column->addWidget(title);
  column->addWidget(status);
  return column;
}

QLayout* HeaderPanel::makeHotKeyColumn() {
  auto* column = new QVBoxLayout;
  column->setSpacing(lineSpacing);
  column->addStretch();
  column->addWidget(hotKeyTag);
  column->addWidget(hotKeyHint);
  column->addStretch();
  return column;
}

void HeaderPanel::refresh() {
  const AppLanguage language = state.localization.currentLanguage();
  title->setText(titleText.in(language));
  status->setText(statusText.in(language));
  hotKeyHint->setText(hotKeyText.in(language));
  hotKeyTag->setToolTip(hotKeyTooltip.in(language));
  hotKeyHint->setToolTip(hotKeyTooltip.in(language));
}

}  // namespace vantorel
