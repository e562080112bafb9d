#include "MappingList.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>
#include <cstddef>

#include "AppTheme.h"
#include "MappingRow.h"
#include "PixelGrid.h"
#include "TextLine.h"
#include "Typography.h"

namespace vantorel {
namespace {

constexpr int headerHeight = 16;
constexpr int headerGap = 8;
constexpr int borderWidth = 2;
constexpr int dividerHeight = 1;

/// The outline around the rows, and the dividers that show between them.
class RowBox : public QWidget {
 public:
  using QWidget::QWidget;

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    paintOutline(painter, rect(), borderWidth, AppTheme::borderColor());
    for (std::size_t above = 0; above + 1 < gamepadButtonCount; ++above) {
      const int top = borderWidth + static_cast<int>(above) * (MappingRow::rowHeight + dividerHeight);
      fillSharp(painter, QRectF(0, top + MappingRow::rowHeight, width(), dividerHeight),
                AppTheme::borderColor());
    }
  }
};

}  // namespace

MappingList::MappingList(WindowState& windowState, QWidget* parent) : QWidget(parent), state(windowState) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(headerGap);
  layout->addWidget(makeHeader());
  layout->addWidget(makeBox());
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  observations = {
      state.mappingStore.mappings.observe([this] { showRows(); }),
      state.controllerManager.lastButtonPressed.observe([this] { showRows(); }),
      state.isEnabled.observe([this] { showOfflineMark(); }),
      state.localization.currentLanguage().observe([this] { showTexts(); }),
  };
  showTexts();
  showOfflineMark();
}

MappingRow* MappingList::row(GamepadButton button) const { return rows.at(static_cast<std::size_t>(button)); }

QWidget* MappingList::makeHeader() {
  auto* header = new QWidget;
  title = new TextLine(headerHeight, systemFont(captionSize, QFont::Black), AppTheme::text());
  offlineMark = new TextLine(headerHeight, systemFont(10), AppTheme::accent());
  auto* layout = new QHBoxLayout(header);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(title);
  layout->addStretch();
  layout->addWidget(offlineMark);
  header->setFixedHeight(headerHeight);
  return header;
}

QWidget* MappingList::makeBox() {
  auto* box = new RowBox;
  auto* layout = new QVBoxLayout(box);
  layout->setContentsMargins(borderWidth, borderWidth, borderWidth, borderWidth);
  layout->setSpacing(dividerHeight);
  for (const GamepadButton button : allGamepadButtons()) {
    auto* row = new MappingRow(button);
    connect(row, &MappingRow::clicked, this, [this, button, row] {
      row->setFocus();  // also where no mouse pressed it: the keyboard comes back here
      state.openKeyPicker(button);
    });
    rows.at(static_cast<std::size_t>(button)) = row;
    layout->addWidget(row);
  }
  return box;
}

void MappingList::showTexts() {
  const bool isChinese = state.localization.currentLanguage() == AppLanguage::chinese;
  title->setText(isChinese ? QStringLiteral("宏配置") : QStringLiteral("MACRO_CONFIGURATION"));
  title->setToolTip(isChinese ? QStringLiteral("选择手柄的每个按钮发送哪个按键。")
                              : QStringLiteral("Choose the key that each controller button sends."));
  offlineMark->setText(isChinese ? QStringLiteral("[ 离线 ]") : QStringLiteral("[ OFFLINE ]"));
  setAccessibleName(title->text());
  showRows();
}

void MappingList::showRows() {
  const AppLanguage language = state.localization.currentLanguage();
  const auto lastPressed = state.controllerManager.lastButtonPressed.get();
  for (const GamepadButton button : allGamepadButtons()) {
    row(button)->show({language, state.mappingStore.getKeyboardKey(button), lastPressed == button});
  }
}

void MappingList::showOfflineMark() { offlineMark->setVisible(!state.isEnabled); }

}  // namespace vantorel
