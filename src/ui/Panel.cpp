#include "Panel.h"

#include "Typography.h"

namespace vantorel {

namespace {

constexpr int lineSpacing = 8;

}  // namespace

Panel::Panel(WindowState& windowState, const CardStyle& style, QWidget* parent)
    : CardFrame(style, parent), state(windowState) {
  contentLayout()->setSpacing(lineSpacing);
  QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
}

SectionTag* Panel::addTag() {
  auto* tag = new SectionTag({}, this);
  contentLayout()->addWidget(tag);
  return tag;
}

WrappingLabel* Panel::addLine(QFont::Weight weight) {
  auto* line = new WrappingLabel(monospaced(captionSize, weight), AppTheme::text(), this);
  contentLayout()->addWidget(line);
  return line;
}

RetroButton* Panel::addButton(const QColor& color, std::function<void()> action) {
  auto* button = new RetroButton(color, {}, this);
  connect(button, &QPushButton::clicked, this, std::move(action));
  contentLayout()->addWidget(button);
  return button;
}

QString Panel::local(const BilingualText& text) const {
  return text.in(state.localization.currentLanguage());
}

}  // namespace vantorel
