#include "Panel.h"

#include "Typography.h"

namespace vantorel {

namespace {

constexpr int lineSpacing = 8;

}  // namespace

Panel::Panel(WindowState& windowState, const CardStyle& style, QWidget* parent)
    : CardFrame(style, parent), state(windowState), destination(contentLayout()) {
  destination->setSpacing(lineSpacing);
  QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
}

SectionTag* Panel::addTag() {
  auto* tag = new SectionTag({}, this);
  destination->addWidget(tag);
  return tag;
}

WrappingLabel* Panel::addLine(QFont::Weight weight) {
  auto* line = new WrappingLabel(monospaced(captionSize, weight), AppTheme::text(), this);
  line->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  destination->addWidget(line);
  return line;
}

/// Its square is in line with the titles of the other panels: the room for its focus frame lies in the
/// padding, and what follows is indented by as much.
RetroCheckBox* Panel::addSwitch(std::function<void(bool isOn)> flip) {
  auto* checkBox = new RetroCheckBox({}, this);
  connect(checkBox, &QCheckBox::toggled, this, std::move(flip));
  const int frame = checkBox->boxRect().left();
  destination->setContentsMargins(destination->contentsMargins() - QMargins(frame, frame, frame, frame));
  destination->setSpacing(lineSpacing - frame);
  destination->addWidget(checkBox);
  auto* rest = new QVBoxLayout;
  rest->setContentsMargins(frame, 0, frame, frame);
  rest->setSpacing(lineSpacing);
  destination->addLayout(rest, 1);
  destination = rest;
  return checkBox;
}

void Panel::add(QWidget* widget, Qt::Alignment alignment) { destination->addWidget(widget, 0, alignment); }

void Panel::addSpace() { destination->addStretch(); }

RetroButton* Panel::addButton(const QColor& color, std::function<void()> action) {
  auto* button = new RetroButton(color, {}, this);
  connect(button, &QPushButton::clicked, this, std::move(action));
  destination->addWidget(button);
  return button;
}

QString Panel::local(const BilingualText& text) const {
  return text.in(state.localization.currentLanguage());
}

}  // namespace vantorel
