#include "RemedyView.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "DotGrid.h"
#include "RetroScrollArea.h"
#include "Typography.h"

namespace vantorel {

namespace {

constexpr int pagePadding = 40;
constexpr int cardWidth = 640;
constexpr int sectionSpacing = 8;
constexpr int spaceBetweenSections = 16;

constexpr BilingualText whatTag{"WHAT_IS_MISSING", "缺少什么"};
constexpr BilingualText whyTag{"WHY", "原因"};
constexpr BilingualText nextStepTag{"NEXT_STEP", "下一步"};
constexpr BilingualText whatHint{"Says what this desktop lacks.", "说明此桌面缺少什么。"};
constexpr BilingualText whyHint{"Says what it is needed for.", "说明为什么需要它。"};
constexpr BilingualText nextStepHint{"Says what you can do about it.", "说明可以怎么做。"};
constexpr BilingualText backText{"BACK", "返回"};
constexpr BilingualText backHint{"Returns to the window.", "返回主界面。"};

CardStyle heavyCard() {
  CardStyle style;
  style.padding = 24;
  style.outlineWidth = 4;
  style.shadowOpacity = 0.08;
  style.shadowOffset = 8;
  return style;
}

}  // namespace

RemedyView::RemedyView(WindowState& windowState, std::function<void()> goBack, QWidget* parent)
    : QWidget(parent),
      state(windowState),
      leave(std::move(goBack)),
      background(new DotGridBackground(this)),
      card(new CardFrame(heavyCard())),
      sections{addSection(), addSection(), addSection()},
      back(new RetroButton(AppTheme::secondaryAccent(), {}, card)) {
  card->contentLayout()->addWidget(back, 0, Qt::AlignLeft);
  card->setFixedWidth(cardWidth);

  auto* row = new QHBoxLayout;  // its column would ask for the card's height at the width of the page
  row->addStretch();
  row->addWidget(card);
  row->addStretch();
  auto* page = new QWidget;
  auto* pageLayout = new QVBoxLayout(page);
  pageLayout->setContentsMargins(pagePadding, pagePadding, pagePadding, pagePadding);
  pageLayout->addStretch(1);
  pageLayout->addLayout(row);
  pageLayout->addStretch(2);
  auto* scrollArea = new RetroScrollArea(this);
  scrollArea->setContent(page);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->addWidget(scrollArea);

  connect(back, &QPushButton::clicked, this, [this] { leave(); });
  updates.follow([this] { refresh(); }, state.localization.currentLanguage());
}

RemedyView::Section RemedyView::addSection() {
  QVBoxLayout* const layout = card->contentLayout();
  layout->setSpacing(sectionSpacing);
  const Section section{new SectionTag({}, card), new WrappingLabel(monospaced(), AppTheme::text(), card)};
  layout->addWidget(section.tag);
  layout->addWidget(section.text);
  layout->addSpacing(spaceBetweenSections - sectionSpacing);
  return section;
}

void RemedyView::setRemedy(const Remedy& remedy) {
  shown = remedy;
  refresh();
}

void RemedyView::refresh() {
  const AppLanguage language = state.localization.currentLanguage();
  const Remedy::Text& text = shown.in(language);
  const auto fill = [language](const Section& section, const BilingualText& tag, const BilingualText& hint,
                               const QString& content) {
    section.tag->setText(tag.in(language));
    section.tag->setToolTip(hint.in(language));
    section.text->setText(content);
  };
  fill(sections[0], whatTag, whatHint, text.what);
  fill(sections[1], whyTag, whyHint, text.why);
  fill(sections[2], nextStepTag, nextStepHint, text.nextStep);
  back->setText(backText.in(language));
  back->setToolTip(backHint.in(language));
}

void RemedyView::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    leave();
  } else {
    QWidget::keyPressEvent(event);
  }
}

void RemedyView::resizeEvent(QResizeEvent* /*event*/) { background->setGeometry(rect()); }

void RemedyView::showEvent(QShowEvent* /*event*/) { back->setFocus(Qt::OtherFocusReason); }

}  // namespace vantorel
