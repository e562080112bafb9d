#include "LanguageMenu.h"

#include <algorithm>

#include "AppTheme.h"
#include "BilingualText.h"
#include "RetroMenu.h"

namespace vantorel {

namespace {

constexpr BilingualText name{"Language", "语言"};
constexpr BilingualText hint{"Chooses the language of this window.", "选择界面语言。"};

QString nameOf(AppLanguage language) {
  const std::string_view text = displayName(language);
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

LanguageMenu::LanguageMenu(WindowState& windowState, QWidget* parent)
    : RetroButton(AppTheme::secondaryAccent(), {}, parent), state(windowState) {
  setSymbol(Icon::globe);
  fillMenu();
  updates.follow([this] { refresh(); }, state.localization.currentLanguage());
}

/// The button keeps the width of the longest name, so that nothing beside it moves.
void LanguageMenu::fillMenu() {
  auto* menu = new RetroMenu(this);
  int width = 0;
  for (const AppLanguage language : allAppLanguages()) {
    QAction* const entry = menu->addAction(nameOf(language));
    entry->setCheckable(true);
    connect(entry, &QAction::triggered, this, [this, language] {
      state.chooseLanguage(language);
      refresh();  // a click unchecks an entry that was checked
    });
    entries.push_back(entry);
    setText(nameOf(language));
    width = std::max(width, sizeHint().width());
  }
  setFixedWidth(width);
  setMenu(menu);
}

void LanguageMenu::refresh() {
  const AppLanguage current = state.localization.currentLanguage();
  for (std::size_t index = 0; index < entries.size(); ++index) {
    entries[index]->setChecked(allAppLanguages().at(index) == current);
  }
  setText(nameOf(current));
  setToolTip(hint.in(current));
  setAccessibleName(name.in(current) + QStringLiteral(": ") + nameOf(current));
  menu()->setAccessibleName(name.in(current));
}

}  // namespace vantorel
