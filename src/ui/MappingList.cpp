#include "MappingList.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>
#include <cstddef>

#include "AppTheme.h"
#include "BilingualText.h"
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

/// The outline around the rows and the dividers between them. They lie over the rows, so that each is equally
/// thick everywhere, also where a point is no whole number of pixels.
class RowLines : public QWidget {
 public:
  explicit RowLines(QWidget* parent) : QWidget(parent) { setAttribute(Qt::WA_TransparentForMouseEvents); }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    const PixelGrid grid(painter);
    for (int above = 0; above + 1 < static_cast<int>(gamepadButtonCount); ++above) {
      const int top = borderWidth + above * (MappingRow::rowHeight + dividerHeight) + MappingRow::rowHeight;
      QRectF line = grid.snapped(QRectF(0, top, width(), dividerHeight));
      line.setHeight(grid.lineWidth(dividerHeight));
      fillSharp(painter, line, AppTheme::borderColor());
    }
    paintOutline(painter, rect(), borderWidth, AppTheme::borderColor());
  }
};

/// The ground below the rows, with their rule, which goes on through any gap that is left between two.
class RowBox : public QWidget {
 public:
  RowBox() : lines(new RowLines(this)) {}

  void addRow(MappingRow* row) {
    layout()->addWidget(row);
    lines->raise();
  }

 protected:
  void resizeEvent(QResizeEvent* /*event*/) override { lines->setGeometry(rect()); }

  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    fillSharp(painter, rect(), Qt::white);
    fillSharp(painter, QRectF(borderWidth + MappingRow::leftCellWidth, 0, MappingRow::ruleWidth, height()),
              AppTheme::borderColor());
  }

 private:
  RowLines* lines;
};

constexpr BilingualText titleText{"MACRO_CONFIGURATION", "宏配置"};
constexpr BilingualText titleHelp{"Choose the key that each controller button sends.",
                                  "选择手柄的每个按钮发送哪个按键。"};
constexpr BilingualText offlineText{"[ OFFLINE ]", "[ 离线 ]"};

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
    box->addRow(row);
  }
  return box;
}

void MappingList::showTexts() {
  const AppLanguage language = state.localization.currentLanguage();
  title->setText(titleText.in(language));
  title->setToolTip(titleHelp.in(language));
  offlineMark->setText(offlineText.in(language));
  setAccessibleName(title->text());
  showRows();
}

void MappingList::showRows() const {
  const AppLanguage language = state.localization.currentLanguage();
  const auto lastPressed = state.controllerManager.lastButtonPressed.get();
  for (const GamepadButton button : allGamepadButtons()) {
    row(button)->show({language, state.mappingStore.getKeyboardKey(button), lastPressed == button});
  }
}

void MappingList::showOfflineMark() { offlineMark->setVisible(!state.isEnabled); }

}  // namespace vantorel
