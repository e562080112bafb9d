#include "WindowState.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Machine.h"
#include "VantorelApp.h"

namespace vantorel::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

const std::string inactiveMenu =
    "menu ✗ Mapping Inactive (disabled) | -- | Enable Mapping ⌘T | -- | Show Window ⌘S | -- | Quit ⌘Q";
const std::string activeMenu =
    "menu ✓ Mapping Active (disabled) | -- | Disable Mapping ⌘T | -- | Show Window ⌘S | -- | Quit ⌘Q";

class Window : public ::testing::Test {
 protected:
  WindowState& open() {
    WindowState& window = app->openWindow();
    window.appear();
    machine.settle();
    machine.take();
    return window;
  }

  void chooseMenuItem(const std::string& title) {
    ASSERT_TRUE(machine.platform.statusBar.choose(title)) << title;
    machine.settle();
  }

  Machine machine;
  std::unique_ptr<VantorelApp> app = std::make_unique<VantorelApp>(machine.platform.ports());
};

TEST_F(Window, ObtainsItsObjectsInOrder) {
  machine.platform.userDefaults.prepareString("AppLanguage", "中文");
  app->openWindow().appear();
  machine.settle();
  const auto lines = machine.take();
  ASSERT_EQ(lines.size(), 10U);
  EXPECT_EQ(lines[0], "| [09:00:00] 🚀 应用启动");
  EXPECT_EQ(lines[5], "| [09:00:00] ⚠️  未发现已连接的手柄");
  EXPECT_EQ(lines[6].rfind("defaults gamepad_keyboard_mappings data [", 0), 0U);
  EXPECT_EQ(lines[7], "defaults AppLanguage string 中文");
  EXPECT_EQ(lines[8], "hotkey register VTKY 1 46 768 -> 0");
  EXPECT_EQ(lines[9], "| ✅ 热键已注册: Command + Shift + M");
}

TEST_F(Window, FirstShowsEnglishMappingOffAndNoMode) {
  const WindowState& window = open();
  EXPECT_EQ(window.localization.currentLanguage(), AppLanguage::english);
  EXPECT_FALSE(window.isEnabled);
  EXPECT_FALSE(window.menuBarManager.isMenuBarMode);
  EXPECT_FALSE(window.controllerManager.joystickMouseController.isEnabled);
  EXPECT_EQ(window.selectedGamepadButton.get(), std::nullopt);
  EXPECT_EQ(window.mappingStore.mappings.get().size(), 8U);
}

TEST_F(Window, SendsNothingUntilMappingIsSwitchedOn) {
  const auto pad = machine.plugPad();
  WindowState& window = open();
  pad->press(GamepadButton::buttonB);
  machine.advance(200ms);
  EXPECT_THAT(machine.takeEffects(), IsEmpty());
  pad->release(GamepadButton::buttonB);
  window.setEnabled(true);
  pad->press(GamepadButton::buttonB);
  machine.advance(200ms);
  EXPECT_THAT(machine.takeEffects(), ElementsAre("key down 53", "key up 53", "key down 53", "key up 53"));
}

TEST_F(Window, SwitchingHandsOverTheListOrAnEmptyOne) {
  WindowState& window = open();
  window.setEnabled(true);
  EXPECT_THAT(machine.takeOutput(), ElementsAre("🔄 已更新 8 个按键映射"));
  window.setEnabled(false);
  EXPECT_THAT(machine.takeOutput(), ElementsAre("🔄 已清空按键映射"));
}

TEST_F(Window, SettingTheSwitchToWhatItIsDoesNothing) {
  WindowState& window = open();
  window.setEnabled(false);
  window.setEnabled(true);
  machine.take();
  window.setEnabled(true);
  EXPECT_THAT(machine.take(), IsEmpty());
}

TEST_F(Window, SwitchingOnWithoutPermissionPromptsAndFillsTheTable) {
  machine.platform.accessibility.setGranted(false);
  WindowState& window = open();
  window.setEnabled(true);
  EXPECT_THAT(machine.take(), ElementsAre("prompt", "| [09:00:00] 🔄 已更新 8 个按键映射"));
  window.setEnabled(false);
  EXPECT_THAT(machine.take(), ElementsAre("| [09:00:00] 🔄 已清空按键映射")) << "no prompt";
}

TEST_F(Window, TheHotKeyFlipsTheSwitch) {
  WindowState& window = open();
  machine.platform.hotKeys.press();
  machine.settle();
  EXPECT_TRUE(window.isEnabled);
  EXPECT_THAT(machine.takeOutput(), ElementsAre("🔄 已更新 8 个按键映射"));
  machine.platform.hotKeys.press();
  machine.settle();
  EXPECT_FALSE(window.isEnabled);
}

TEST_F(Window, AnEditWhileOffReachesTheTableAllTheSame) {
  WindowState& window = open();
  window.openKeyPicker(GamepadButton::menu);
  EXPECT_EQ(window.selectedGamepadButton.get(), GamepadButton::menu);
  window.chooseKey(KeyboardKey::m);
  EXPECT_EQ(window.selectedGamepadButton.get(), std::nullopt);
  EXPECT_EQ(window.mappingStore.getKeyboardKey(GamepadButton::menu), KeyboardKey::m);
  EXPECT_THAT(machine.takeOutput(), ElementsAre("🔄 已更新 9 个按键映射")) << "once, by the choice alone";
}

TEST_F(Window, AnEditWhileOnIsHandedOverByTheChoiceAndByTheReaction) {
  WindowState& window = open();
  window.setEnabled(true);
  machine.take();
  window.openKeyPicker(GamepadButton::menu);
  window.chooseKey(KeyboardKey::m);
  EXPECT_THAT(machine.takeOutput(), ElementsAre("🔄 已更新 9 个按键映射", "🔄 已更新 9 个按键映射"));
}

TEST_F(Window, ChoosingTheKeyItHasSavesButIsNoChange) {
  WindowState& window = open();
  window.setEnabled(true);
  machine.take();
  window.openKeyPicker(GamepadButton::buttonA);
  window.chooseKey(KeyboardKey::space);
  const auto lines = machine.take();
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0].rfind("defaults gamepad_keyboard_mappings data ", 0), 0U);
  EXPECT_EQ(lines[1], "| [09:00:00] 🔄 已更新 8 个按键映射");
}

TEST_F(Window, ThePickerClosesOnceTheKeyIsStoredAndHandedOver) {
  WindowState& window = open();
  window.openKeyPicker(GamepadButton::buttonA);
  std::vector<std::vector<std::string>> linesBeforeClosings;
  const auto subscription =
      window.selectedGamepadButton.observe([&] { linesBeforeClosings.push_back(machine.takeOutput()); });
  window.chooseKey(KeyboardKey::m);
  EXPECT_THAT(linesBeforeClosings, ElementsAre(ElementsAre("🔄 已更新 8 个按键映射")));
}

TEST_F(Window, ClosingThePickerChangesNothing) {
  WindowState& window = open();
  window.openKeyPicker(GamepadButton::buttonA);
  window.closeKeyPicker();
  EXPECT_EQ(window.selectedGamepadButton.get(), std::nullopt);
  window.chooseKey(KeyboardKey::m);  // no picker is open
  EXPECT_THAT(machine.take(), IsEmpty());
}

TEST_F(Window, TheThumbstickCheckboxStartsAndStops) {
  WindowState& window = open();
  window.setJoystickEnabled(true);
  EXPECT_THAT(machine.takeOutput(), ElementsAre("✅ 启动摇杆触摸屏滚动控制", "   灵敏度: 3.0, 死区: 0.15"));
  window.setJoystickEnabled(true);
  EXPECT_THAT(machine.take(), IsEmpty());
  window.setJoystickEnabled(false);
  EXPECT_THAT(machine.takeOutput(), ElementsAre("🛑 停止摇杆触摸屏滚动控制"));
}

TEST_F(Window, TheSlidersSnapToTheirGrids) {
  WindowState& window = open();
  const JoystickMouseController& mouse = window.controllerManager.joystickMouseController;
  window.setMouseSensitivity(17.4);
  window.setScrollSensitivity(99);
  window.setDeadzone(0.32);
  EXPECT_EQ(mouse.mouseSensitivity, 17.0F);
  EXPECT_EQ(mouse.sensitivity, 10.0F);
  EXPECT_EQ(mouse.deadzone, 0.3F);
  window.setJoystickEnabled(true);
  window.setJoystickEnabled(false);
  EXPECT_EQ(mouse.mouseSensitivity, 17.0F) << "switching off resets nothing";
}

TEST_F(Window, EntersAndLeavesMenuBarMode) {
  WindowState& window = open();
  window.setMenuBarMode(true);
  EXPECT_THAT(machine.take(), ElementsAre("status item created", inactiveMenu, "policy accessory"));
  window.setMenuBarMode(false);
  EXPECT_THAT(machine.take(), ElementsAre("policy regular", "status item removed"));
  window.setMenuBarMode(true);
  EXPECT_EQ(machine.take().front(), "status item created");
}

TEST_F(Window, TheMenuFollowsTheSwitch) {
  WindowState& window = open();
  window.setMenuBarMode(true);
  machine.take();
  chooseMenuItem("Enable Mapping");
  EXPECT_TRUE(window.isEnabled);
  EXPECT_THAT(machine.take(), ElementsAre("| [09:00:00] 🔄 已更新 8 个按键映射", activeMenu));
  machine.platform.hotKeys.press();
  machine.settle();
  EXPECT_THAT(machine.take(), ElementsAre("| [09:00:00] 🔄 已清空按键映射", inactiveMenu));
}

TEST_F(Window, OutsideTheModeNoMenuIsBuilt) {
  WindowState& window = open();
  window.setEnabled(true);
  EXPECT_THAT(machine.takeEffects(), IsEmpty());
}

TEST_F(Window, EntersTheModeWithTheMenuOfAnActiveMapping) {
  WindowState& window = open();
  window.setEnabled(true);
  machine.take();
  window.setMenuBarMode(true);
  EXPECT_THAT(machine.take(), Contains(activeMenu));
}

TEST_F(Window, ShowWindowLeavesTheMode) {
  WindowState& window = open();
  window.setMenuBarMode(true);
  machine.take();
  chooseMenuItem("Show Window");
  EXPECT_FALSE(window.menuBarManager.isMenuBarMode);
  EXPECT_THAT(machine.take(), ElementsAre("policy regular", "policy regular", "status item removed"));
}

TEST_F(Window, QuitAsksTheProgramToEnd) {
  WindowState& window = open();
  window.setMenuBarMode(true);
  machine.take();
  chooseMenuItem("Quit");
  EXPECT_THAT(machine.take(), ElementsAre("terminate"));
  EXPECT_TRUE(machine.platform.application.takeTermination());
}

TEST_F(Window, LeavesTheModeWithoutAnItem) {
  machine.platform.faults.set(Fault::statusItem, true);
  WindowState& window = open();
  window.setMenuBarMode(true);
  EXPECT_THAT(machine.take(), ElementsAre("policy accessory"));
  window.setMenuBarMode(false);
  EXPECT_THAT(machine.take(), ElementsAre("policy regular"));
}

TEST_F(Window, ChoosingALanguageSavesIt) {
  WindowState& window = open();
  window.chooseLanguage(AppLanguage::chinese);
  window.chooseLanguage(AppLanguage::chinese);
  EXPECT_THAT(machine.take(),
              ElementsAre("defaults AppLanguage string 中文", "defaults AppLanguage string 中文"));
}

TEST_F(Window, ItsButtonsDoWhatTheySay) {
  WindowState& window = open();
  window.refreshSystem();
  EXPECT_THAT(machine.takeOutput(), ElementsAre("🔐 辅助功能权限: ✅ 已授权"));
  window.startProbe();
  EXPECT_THAT(machine.takeOutput(), Contains("🎯 开始实时监测模式..."));
  window.fixPermission();
  window.downloadDriver();
  EXPECT_THAT(
      machine.take(),
      ElementsAre("open x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility",
                  "open https://github.com/360Controller/360Controller/releases/tag/v0.16.11"));
}

TEST_F(Window, RefreshingAsksWithoutAPrompt) {
  machine.platform.accessibility.setGranted(false);
  WindowState& window = open();
  machine.platform.accessibility.setGranted(true);
  window.refreshSystem();
  machine.settle();
  EXPECT_TRUE(window.controllerManager.hasAccessibilityPermission);
  machine.platform.accessibility.setGranted(false);
  window.refreshSystem();
  EXPECT_THAT(machine.takeEffects(), IsEmpty());
}

TEST_F(Window, AFurtherOneHasItsOwnManagerAndStoreAndSharesTheRest) {
  WindowState& first = open();
  WindowState& second = open();
  EXPECT_NE(&first.controllerManager, &second.controllerManager);
  EXPECT_NE(&first.mappingStore, &second.mappingStore);
  EXPECT_EQ(&first.localization, &second.localization);
  EXPECT_EQ(&first.menuBarManager, &second.menuBarManager);
  EXPECT_EQ(&first.hotkeyManager, &second.hotkeyManager);
  first.setEnabled(true);
  EXPECT_FALSE(second.isEnabled);
}

TEST_F(Window, TheHotKeyGoesToTheOneThatAppearedLast) {
  WindowState& first = open();
  WindowState& second = open();
  machine.platform.hotKeys.press();
  machine.settle();
  EXPECT_FALSE(first.isEnabled);
  EXPECT_TRUE(second.isEnabled);
}

TEST_F(Window, TheHotKeyGoesBackWhenTheLastOneCloses) {
  WindowState& first = open();
  WindowState& second = open();
  app->closeWindow(second);
  machine.platform.hotKeys.press();
  machine.settle();
  EXPECT_TRUE(first.isEnabled);
}

TEST_F(Window, MenuBarModeEndsForAllWhenOneLeavesIt) {
  WindowState& first = open();
  open();
  first.setMenuBarMode(true);
  machine.settle();
  machine.take();
  first.setMenuBarMode(false);
  machine.settle();
  EXPECT_THAT(machine.take(), Contains("status item removed"));
  EXPECT_FALSE(first.menuBarManager.isMenuBarMode);
}

TEST_F(Window, TheStatusMenuActsOnTheOneWhereTheModeWasSwitchedOn) {
  WindowState& first = open();
  WindowState& second = open();
  second.setMenuBarMode(true);
  first.openKeyPicker(GamepadButton::buttonA);
  machine.settle();
  EXPECT_THAT(machine.take(), ElementsAre("status item created", inactiveMenu, "policy accessory"));
  chooseMenuItem("Enable Mapping");
  EXPECT_FALSE(first.isEnabled);
  EXPECT_TRUE(second.isEnabled);
}

TEST_F(Window, TheStatusMenuGoesToAnotherOneWhenItsOwnCloses) {
  WindowState& first = open();
  WindowState& second = open();
  second.setMenuBarMode(true);
  machine.settle();
  app->closeWindow(second);
  chooseMenuItem("Enable Mapping");
  EXPECT_TRUE(first.isEnabled);
  const WindowState& third = open();
  app->closeWindow(first);
  chooseMenuItem("Enable Mapping");
  EXPECT_TRUE(third.isEnabled);
  machine.take();
  chooseMenuItem("Quit");
  EXPECT_THAT(machine.take(), Contains("terminate"));
  chooseMenuItem("Show Window");
  EXPECT_FALSE(third.menuBarManager.isMenuBarMode);
}

TEST_F(Window, TheProgramEndsSilentlyButForTheThumbsticks) {
  WindowState& window = open();
  window.setMenuBarMode(true);
  machine.take();
  machine.platform.statusBar.endProgram();
  app.reset();
  EXPECT_THAT(machine.take(), ElementsAre("| 🛑 停止摇杆触摸屏滚动控制"));
}

TEST_F(Window, ARestartFindsTheSavedListAndLanguageAndNothingElse) {
  {
    WindowState& window = open();
    window.openKeyPicker(GamepadButton::options);
    window.chooseKey(KeyboardKey::z);
    window.chooseLanguage(AppLanguage::chinese);
    window.setEnabled(true);
    window.setMenuBarMode(true);
    window.setJoystickEnabled(true);
    window.setDeadzone(0.4);
  }
  app.reset();
  app = std::make_unique<VantorelApp>(machine.platform.ports());
  const WindowState& window = open();
  EXPECT_EQ(window.mappingStore.getKeyboardKey(GamepadButton::options), KeyboardKey::z);
  EXPECT_EQ(window.localization.currentLanguage(), AppLanguage::chinese);
  EXPECT_FALSE(window.isEnabled);
  EXPECT_FALSE(window.menuBarManager.isMenuBarMode);
  EXPECT_FALSE(window.controllerManager.joystickMouseController.isEnabled);
  EXPECT_EQ(window.controllerManager.joystickMouseController.deadzone, 0.15F);
}

TEST_F(Window, LogsInTheLanguageOfTheInterface) {
  const auto pad = machine.plugPad();
  WindowState& window = open();
  window.chooseLanguage(AppLanguage::chinese);
  pad->press(GamepadButton::menu);
  machine.settle();
  EXPECT_THAT(machine.takeOutput(), ElementsAre("🎮 按下: 菜单键", "⚠️  菜单键 未设置映射"));
}

}  // namespace
}  // namespace vantorel::test
