#include "LanguageMenu.h"

#include "AccessibleMenuButton.h"
#include "AppTheme.h"
#include "BilingualText.h"
#include "TextLine.h"

namespace vantorel {

namespace {

constexpr BilingualText name{"Language", "语言"};
constexpr BilingualText hint{"Chooses the language of this window.", "选择界面语言。"};

}  // namespace

LanguageMenu::LanguageMenu(WindowState& windowState, QWidget* parent)
    : RetroButton(AppTheme::secondaryAccent(), {}, parent), state(windowState), menu(new RetroMenu(this)) {
  setSymbol(Icon::globe);
  connect(this, &QPushButton::clicked, this, &LanguageMenu::openMenu);
  presentAsMenuButton(this, menu);
  fillMenu();
  updates.follow([this] { refresh(); }, state.localization.currentLanguage());
}

/// The button keeps the size of the largest name, so that nothing beside it moves.
void LanguageMenu::fillMenu() {
  QSize largest;
  for (const AppLanguage language : allAppLanguages()) {
    QAction* const entry = menu->addAction(fromCore(displayName(language)));
    entry->setCheckable(true);
    connect(entry, &QAction::triggered, this, [this, language] {
      state.chooseLanguage(language);
      menu->close();  // a screen reader chooses without a click
      refresh();      // a click unchecks an entry that was checked
    });
    entries.push_back(entry);
    setText(fromCore(displayName(language)));
    largest = largest.expandedTo(sizeHint());
  }
  setFixedSize(largest);
}

/// Not by `setMenu`, which would wait in here until the menu is closed.
void LanguageMenu::openMenu() {
  menu->popup(mapToGlobal(QPoint(0, height())));
  for (QAction* const entry : entries) {
    if (entry->isChecked()) menu->setActiveAction(entry);
  }
}

void LanguageMenu::refresh() {
  const AppLanguage current = state.localization.currentLanguage();
  for (std::size_t index = 0; index < entries.size(); ++index) {
    entries[index]->setChecked(allAppLanguages().at(index) == current);
  }
  setText(fromCore(displayName(current)));
  setToolTip(hint.in(current));
  setAccessibleName(name.in(current) + QStringLiteral(": ") + fromCore(displayName(current)));
  menu->setAccessibleName(name.in(current));
}

}  // namespace vantorel
