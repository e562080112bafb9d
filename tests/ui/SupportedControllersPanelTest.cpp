#include "SupportedControllersPanel.h"

#include <gtest/gtest.h>

#include "OpenWindow.h"
#include "Rendering.h"

namespace vantorel {
namespace {

class SupportedControllersPanelTest : public testing::Test {
 protected:
  QStringList texts() { return OpenWindow::labels(host.panel(6)); }

  OpenWindow host;
};

TEST_F(SupportedControllersPanelTest, ListsTheFamiliesInEnglish) {
  EXPECT_EQ(texts(), QStringList({"SUPPORTED_CONTROLLERS", "Xbox (Requires Driver)",
                                  "PS4 DualShock (Bluetooth)", "PS5 DualSense (Bluetooth)",
                                  "Switch Pro (Bluetooth)", "Xbox requires 360Controller driver"}));
}

TEST_F(SupportedControllersPanelTest, ListsTheFamiliesInChinese) {
  host.state.chooseLanguage(AppLanguage::chinese);
  host.settle();
  EXPECT_EQ(texts(),
            QStringList({"SUPPORTED_CONTROLLERS", "Xbox（需要驱动）", "PS4 DualShock（蓝牙）",
                         "PS5 DualSense（蓝牙）", "Switch Pro（蓝牙）", "Xbox 需要 360Controller 驱动"}));
}

TEST_F(SupportedControllersPanelTest, OpensThePageOfTheDriver) {
  host.click("DOWNLOAD_DRIVER");
  EXPECT_TRUE(host.recorded("open https://github.com/360Controller/360Controller/releases/tag/v0.16.11"));
}

TEST_F(SupportedControllersPanelTest, HasAPlainBorderWithoutShadow) {
  Panel& panel = host.panel(6);
  const QImage picture = rendered(panel);
  EXPECT_EQ(runLength(picture, {0, panel.height() / 2}, {1, 0}), 2);
  const QRect plate = panel.cardRect();
  EXPECT_TRUE(isNearly(picture.pixelColor(plate.right() + 2, plate.center().y()), AppTheme::background()));
  EXPECT_EQ(plate.height(), host.panel(5).cardRect().height());
}

}  // namespace
}  // namespace vantorel
