#include "ConnectionPanel.h"

#include <gtest/gtest.h>

#include "Icons.h"
#include "OpenWindow.h"

namespace vantorel {
namespace {

class ConnectionPanelTest : public testing::Test {
 protected:
  QStringList texts() { return OpenWindow::labels(host.panel(0)); }
  const IconView& icon() { return *dynamic_cast<IconView*>(findIcon()); }

  QWidget* findIcon() {
    for (QWidget* const child : host.panel(0).findChildren<QWidget*>()) {
      if (dynamic_cast<IconView*>(child) != nullptr) return child;
    }
    return nullptr;
  }

  OpenWindow host;
};

TEST_F(ConnectionPanelTest, SaysThatNothingIsConnected) {
  EXPECT_EQ(texts(), QStringList({"SYS_CONNECTION", "[ DISCONNECTED ]", "NO DEVICE FOUND", "INPUT: ---"}));
  EXPECT_EQ(icon().icon(), Icon::unpluggedCable);
}

TEST_F(ConnectionPanelTest, NamesTheConnectedController) {
  const auto pad = host.plug("Xbox Wireless Controller", "Xbox One");
  EXPECT_EQ(texts(), QStringList({"SYS_CONNECTION", "[ ONLINE ]", "Xbox Wireless Controller", "INPUT: ---"}));
  EXPECT_EQ(icon().icon(), Icon::controller);
  EXPECT_EQ(icon().color(), AppTheme::success());
  host.platform.gameControllers.unplug(pad);
  host.settle();
  EXPECT_EQ(texts(), QStringList({"SYS_CONNECTION", "[ DISCONNECTED ]", "NO DEVICE FOUND", "INPUT: ---"}));
  EXPECT_EQ(icon().icon(), Icon::unpluggedCable);
}

TEST_F(ConnectionPanelTest, ShowsTheLatestInput) {
  const auto pad = host.plug("Pad", "Gamepad");
  host.press(*pad, GamepadButton::leftShoulder);
  EXPECT_EQ(texts().last(), "INPUT: L1 (LB)");
  host.press(*pad, GamepadButton::dpadUp);
  EXPECT_EQ(texts().last(), "INPUT: D-PAD_UP");
}

TEST_F(ConnectionPanelTest, SpeaksChinese) {
  const auto pad = host.plug("Pad", "Gamepad");
  host.press(*pad, GamepadButton::leftShoulder);
  host.state.chooseLanguage(AppLanguage::chinese);
  host.settle();
  EXPECT_EQ(texts(), QStringList({"SYS_CONNECTION", "[ 在线 ]", "Pad", "INPUT: 左肩键 (L1)"}));
  host.platform.gameControllers.unplug(pad);
  host.settle();
  EXPECT_EQ(texts().at(1), "[ DISCONNECTED ]");
  EXPECT_EQ(texts().at(2), "未发现设备");
}

}  // namespace
}  // namespace vantorel
