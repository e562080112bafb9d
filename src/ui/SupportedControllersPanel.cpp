#include "SupportedControllersPanel.h"

namespace vantorel {

namespace {

constexpr int borderWidth = 2;

constexpr const char* tagText = "SUPPORTED_CONTROLLERS";
constexpr BilingualText tagHint{"Lists the controllers that Vantorel knows.", "列出 Vantorel 支持的手柄。"};
constexpr std::array<BilingualText, 4> familyTexts{{
    {"Xbox (Requires Driver)", "Xbox（需要驱动）"},
    {"PS4 DualShock (Bluetooth)", "PS4 DualShock（蓝牙）"},
    {"PS5 DualSense (Bluetooth)", "PS5 DualSense（蓝牙）"},
    {"Switch Pro (Bluetooth)", "Switch Pro（蓝牙）"},
}};
constexpr BilingualText noteText{"Xbox requires 360Controller driver", "Xbox 需要 360Controller 驱动"};
constexpr const char* downloadText = "DOWNLOAD_DRIVER";
constexpr BilingualText downloadName{"DOWNLOAD_DRIVER", "下载驱动"};
constexpr BilingualText downloadHint{"Opens the driver's release page in the browser.",
                                     "在浏览器中打开驱动的发布页面。"};

/// Unlike the other panels it has a plain border; the room of their shadow stays free.
CardStyle plainBorder() {
  CardStyle style;
  style.outlineWidth = borderWidth;
  style.shadowOpacity = 0;
  return style;
}

}  // namespace

SupportedControllersPanel::SupportedControllersPanel(WindowState& windowState, QWidget* parent)
    : Panel(windowState, plainBorder(), parent),
      tag(addTag()),
      families{addLine(), addLine(), addLine(), addLine()},
      note(addLine()) {
  addSpace();
  download = addButton(AppTheme::secondaryAccent(), [this] { state.downloadDriver(); });
  tag->setText(QString::fromUtf8(tagText));
  for (std::size_t index = 0; index < families.size(); ++index) {
    families.at(index)->reserveFor(familyTexts.at(index).inBoth());
  }
  note->reserveFor(noteText.inBoth());
  note->setColor(AppTheme::secondaryText());
  download->setText(QString::fromUtf8(downloadText));
  follow([this] { refresh(); });
}

void SupportedControllersPanel::refresh() {
  tag->setToolTip(local(tagHint));
  for (std::size_t index = 0; index < families.size(); ++index) {
    families.at(index)->setText(local(familyTexts.at(index)));
  }
  note->setText(local(noteText));
  download->setAccessibleName(local(downloadName));
  download->setToolTip(local(downloadHint));
}

}  // namespace vantorel
