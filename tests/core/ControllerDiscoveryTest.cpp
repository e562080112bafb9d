// How controllers are found, identified and adopted.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Manager.h"

namespace vantorel::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

struct Family {
  std::optional<std::string> vendor;
  std::string category;
  ControllerType type;
};

class Identification : public ::testing::TestWithParam<Family> {};

TEST_P(Identification, GoesByVendorAndCategory) {
  Machine machine;
  const auto pad = machine.platform.gameControllers.declare(
      {GetParam().vendor, GetParam().category, ControllerProfile::extended, {}});
  EXPECT_EQ(identifyControllerType(*pad), GetParam().type)
      << GetParam().vendor.value_or("none") << ", " << GetParam().category;
}

INSTANTIATE_TEST_SUITE_P(
    Controller, Identification,
    ::testing::Values(Family{"Xbox Wireless Controller", "Gamepad", ControllerType::xbox},
                      Family{"XBOX", "DualSense", ControllerType::xbox},
                      Family{"Controller (360)", "Gamepad", ControllerType::xbox},
                      Family{"Pro Controller", "Xbox One", ControllerType::xbox},
                      Family{"Sony DualShock", "DualSense", ControllerType::ps4},
                      Family{"Wireless Controller", "DualSense", ControllerType::ps4},
                      Family{"WIRELESS CONTROLLER", "Gamepad", ControllerType::ps4},
                      Family{"Pad", "DualShock 4", ControllerType::ps4},
                      Family{"DualSense", "DualShock 4", ControllerType::ps4},
                      Family{"DualSense Edge", "Gamepad", ControllerType::ps5},
                      Family{"Pad", "DualSense", ControllerType::ps5},
                      Family{"Switch", "DualSense", ControllerType::ps5},
                      Family{"Nintendo Switch Pad", "Gamepad", ControllerType::switchPro},
                      Family{"Pro Controller", "Gamepad", ControllerType::switchPro},
                      Family{"Pad", "Switch Pro Controller", ControllerType::unknown},
                      Family{std::nullopt, "Xbox One", ControllerType::xbox},
                      Family{std::nullopt, "Switch Pro Controller", ControllerType::unknown},
                      Family{"Pad", "Gamepad", ControllerType::unknown},
                      Family{"", "", ControllerType::unknown}));

TEST(ControllerTypeNames, AreShownInTheLogAndInReports) {
  EXPECT_EQ(displayText(ControllerType::unknown), "Unknown");
  EXPECT_EQ(displayText(ControllerType::xbox), "Xbox");
  EXPECT_EQ(displayText(ControllerType::ps4), "PS4 DualShock 4");
  EXPECT_EQ(displayText(ControllerType::ps5), "PS5 DualSense");
  EXPECT_EQ(displayText(ControllerType::switchPro), "Switch Pro Controller");
  EXPECT_EQ(caseName(ControllerType::unknown), "unknown");
  EXPECT_EQ(caseName(ControllerType::xbox), "xbox");
  EXPECT_EQ(caseName(ControllerType::ps4), "ps4");
  EXPECT_EQ(caseName(ControllerType::ps5), "ps5");
  EXPECT_EQ(caseName(ControllerType::switchPro), "switchPro");
}

class Discovery : public ::testing::Test {
 protected:
  Manager machine;
};

/// What the adoption of an extended pad with all buttons writes.
std::vector<std::string> adoptionLines(const std::string& name, const std::string& category,
                                       const std::string& family) {
  return {"🔥 已启用后台事件监听",
          "✅ 成功连接手柄: " + name,
          "📊 产品类别: " + category,
          "🎮 识别类型: " + family,
          "✅ 检测到扩展手柄",
          "🎮 配置扩展手柄按键监听",
          "🔧 开始设置按键处理器...",
          "🖱️  摇杆鼠标控制器已配置",
          "🔄 启动轻量级轮询模式（后台队列，50ms间隔）",
          "✅ 轮询已启动（后台队列，降低 CPU 占用）",
          "✅ A按钮处理器已设置"};
}

TEST_F(Discovery, StartsWithItsInitialValues) {
  GameControllerManager manager(machine.platform.ports(), machine.simulator,
                                [] { return AppLanguage::english; });
  EXPECT_FALSE(manager.isControllerConnected);
  EXPECT_EQ(manager.connectedControllerName.get(), "");
  EXPECT_EQ(manager.lastButtonPressed.get(), std::nullopt);
  EXPECT_EQ(manager.debugMessage.get(), "");
  EXPECT_EQ(manager.lastKeyboardKeyPressed.get(), std::nullopt);
  EXPECT_THAT(manager.debugLogs.get(), IsEmpty());
  EXPECT_FALSE(manager.hasAccessibilityPermission);
  EXPECT_EQ(manager.gamepadType.get(), "未知");
  EXPECT_FALSE(manager.isExtendedGamepad);
  EXPECT_FALSE(manager.is360ControllerInstalled);
  EXPECT_EQ(manager.detectedControllerType.get(), ControllerType::unknown);
}

TEST_F(Discovery, WritesWhatItFindsAtTheStart) {
  const GameControllerManager manager(machine.platform.ports(), machine.simulator,
                                      [] { return AppLanguage::english; });
  EXPECT_THAT(machine.takeOutput(),
              ElementsAre("🚀 应用启动", "⚠️ 未检测到 360Controller 驱动",
                          "💡 需要安装 360Controller 才能使用 Xbox 手柄", "🔐 辅助功能权限: ✅ 已授权",
                          "🔍 检查手柄连接，发现 0 个设备", "⚠️  未发现已连接的手柄"));
}

TEST_F(Discovery, AdoptsTheFirstOfTwoAtTheStart) {
  machine.plugPad("First", "Gamepad");
  machine.plugPad("Second", "Gamepad");
  const GameControllerManager manager(machine.platform.ports(), machine.simulator,
                                      [] { return AppLanguage::english; });
  machine.settle();
  const auto output = machine.takeOutput();
  EXPECT_THAT(output, Contains("🔍 检查手柄连接，发现 2 个设备"));
  EXPECT_THAT(output, Contains("✅ 成功连接手柄: First"));
  EXPECT_THAT(output, Not(Contains("✅ 成功连接手柄: Second")));
  EXPECT_EQ(manager.connectedControllerName.get(), "First");
}

TEST_F(Discovery, AdoptsAControllerThatConnects) {
  GameControllerManager& manager = machine.launch();
  machine.plugPad("Wireless Controller", "DualSense");
  auto expected = adoptionLines("Wireless Controller", "DualSense", "PS4 DualShock 4");
  expected.insert(expected.begin(), "🎮 手柄已连接");
  EXPECT_EQ(machine.takeOutput(), expected);
  EXPECT_TRUE(manager.isControllerConnected);
  EXPECT_EQ(manager.connectedControllerName.get(), "Wireless Controller");
  EXPECT_EQ(manager.gamepadType.get(), "DualSense");
  EXPECT_TRUE(manager.isExtendedGamepad);
  EXPECT_EQ(manager.detectedControllerType.get(), ControllerType::ps4);
}

TEST_F(Discovery, IgnoresAConnectionOfSomethingElse) {
  machine.launch();
  machine.platform.gameControllers.plugNothing();
  machine.settle();
  EXPECT_THAT(machine.take(), IsEmpty());
}

TEST_F(Discovery, PublishesAControllerWithoutANameAsUnknown) {
  GameControllerManager& manager = machine.launch();
  machine.plug({std::nullopt, "Xbox 360", ControllerProfile::extended, {}});
  EXPECT_EQ(manager.connectedControllerName.get(), "未知手柄");
  EXPECT_EQ(manager.detectedControllerType.get(), ControllerType::xbox);
}

TEST_F(Discovery, DisconnectingKeepsTheFactsOfThePad) {
  GameControllerManager& manager = machine.launch();
  const auto pad = machine.plugPad();
  machine.take();
  machine.platform.gameControllers.unplug(pad);
  machine.settle();
  EXPECT_THAT(machine.takeOutput(), ElementsAre("🎮 手柄已断开"));
  EXPECT_FALSE(manager.isControllerConnected);
  EXPECT_EQ(manager.connectedControllerName.get(), "");
  EXPECT_EQ(manager.detectedControllerType.get(), ControllerType::xbox);
  EXPECT_EQ(manager.gamepadType.get(), "Xbox One");
  EXPECT_TRUE(manager.isExtendedGamepad);
}

TEST_F(Discovery, DisconnectingAnotherControllerCountsAsWell) {
  const auto first = machine.plugPad("First", "Gamepad");
  GameControllerManager& manager = machine.launch();
  machine.plugPad("Second", "Gamepad");
  machine.platform.gameControllers.unplug(first);
  machine.settle();
  EXPECT_FALSE(manager.isControllerConnected);
}

TEST_F(Discovery, DoesNotFallBackOnAControllerThatIsStillThere) {
  machine.plugPad("First", "Gamepad");
  GameControllerManager& manager = machine.launch();
  const auto second = machine.plugPad("Second", "Gamepad");
  machine.platform.gameControllers.unplug(second);
  machine.settle();
  EXPECT_FALSE(manager.isControllerConnected);
}

TEST_F(Discovery, TheNewestControllerReplacesTheAdoptedOne) {
  const auto first = machine.plugPad("First", "Gamepad");
  GameControllerManager& manager = machine.launch();
  const auto second = machine.plugPad("Second", "Gamepad");
  EXPECT_EQ(manager.connectedControllerName.get(), "Second");
  machine.map({{GamepadButton::buttonA, KeyboardKey::a}});
  first->press(GamepadButton::buttonA);
  machine.advance(200ms);
  EXPECT_THAT(machine.takeEffects(), IsEmpty()) << "the first one is polled no more";
  second->press(GamepadButton::buttonA);
  machine.advance(200ms);
  EXPECT_THAT(machine.takeEffects(), ElementsAre("key down 0", "key up 0"));
}

TEST_F(Discovery, ComingAndGoingLeavesWhatIsKnownOfTheLatestPress) {
  const auto first = machine.plugPad("First", "Gamepad");
  GameControllerManager& manager = machine.launch();
  machine.map({{GamepadButton::buttonB, KeyboardKey::escape}});
  first->press(GamepadButton::buttonB);
  machine.advance(200ms);
  machine.plugPad("Second", "Gamepad");
  machine.platform.gameControllers.unplug(first);
  machine.settle();
  EXPECT_EQ(manager.lastButtonPressed.get(), GamepadButton::buttonB);
  EXPECT_EQ(manager.lastKeyboardKeyPressed.get(), KeyboardKey::escape);
  EXPECT_EQ(manager.debugMessage.get(), "✅ B → ESC");
}

TEST_F(Discovery, HandlersOnAnEarlierControllerStay) {
  const auto first = machine.plugPad("First", "Gamepad");
  machine.launch();
  machine.plugPad("Second", "Gamepad");
  machine.take();
  first->press(GamepadButton::buttonX);
  machine.settle();
  EXPECT_THAT(machine.takeOutput(), ElementsAre("🎮 按下: X", "⚠️  X 未设置映射"));
}

TEST_F(Discovery, AMicroControllerIsLimited) {
  GameControllerManager& manager = machine.launch();
  machine.plug({"Remote", "Micro", ControllerProfile::micro, {}});
  EXPECT_THAT(
      machine.takeOutput(),
      ElementsAre("🎮 手柄已连接", "🔥 已启用后台事件监听", "✅ 成功连接手柄: Remote", "📊 产品类别: Micro",
                  "🎮 识别类型: Unknown", "⚠️  检测到微型手柄（功能受限）",
                  "❌ 无法配置按键监听：不是扩展手柄", "💡 提示：某些手柄可能需要特殊驱动或设置"));
  EXPECT_TRUE(manager.isControllerConnected);
  EXPECT_FALSE(manager.isExtendedGamepad);
}

TEST_F(Discovery, AStandardControllerIsLimited) {
  GameControllerManager& manager = machine.launch();
  machine.plug({"Old", "Gamepad", ControllerProfile::standard, {}});
  const auto output = machine.takeOutput();
  EXPECT_THAT(output, Contains("⚠️  检测到标准手柄（功能受限）"));
  EXPECT_THAT(output, Contains("❌ 无法配置按键监听：不是扩展手柄"));
  EXPECT_FALSE(manager.isExtendedGamepad);
}

TEST_F(Discovery, ALimitedControllerLeavesTheEarlierOnePolled) {
  const auto first = machine.plugPad("First", "Gamepad");
  GameControllerManager& manager = machine.launch();
  machine.plug({"Old", "Gamepad", ControllerProfile::standard, {}});
  EXPECT_FALSE(manager.isExtendedGamepad);
  machine.map({{GamepadButton::buttonA, KeyboardKey::a}});
  first->press(GamepadButton::buttonA);
  machine.advance(200ms);
  EXPECT_THAT(machine.takeEffects(), ElementsAre("key down 0", "key up 0"));
}

TEST_F(Discovery, ChangeHandlersReportEveryButtonInItsOwnName) {
  machine.launch();
  const auto pad = machine.plugPad();
  machine.take();
  for (const GamepadButton button : allGamepadButtons()) {
    pad->press(button);
    machine.settle();
    const auto output = machine.takeOutput();
    if (button == GamepadButton::buttonA) {
      EXPECT_THAT(output, ElementsAre("🎮 [事件] A按钮按下"));
    } else {
      EXPECT_THAT(output, ElementsAre("🎮 按下: " + std::string(englishName(button)),
                                      "⚠️  " + std::string(englishName(button)) + " 未设置映射"));
    }
    pad->release(button);
    machine.settle();
    EXPECT_THAT(machine.take(), IsEmpty()) << "a release does nothing";
  }
}

TEST_F(Discovery, APadWithoutStickAndOptionsButtonsGetsFewerHandlers) {
  machine.launch();
  const auto pad =
      machine.plug({"Pad",
                    "Gamepad",
                    ControllerProfile::extended,
                    {GamepadButton::leftThumbstick, GamepadButton::rightThumbstick, GamepadButton::options}});
  machine.map({{GamepadButton::menu, KeyboardKey::m}});
  pad->press(GamepadButton::menu);
  machine.advance(200ms);
  EXPECT_EQ(machine.takeEffects().size(), 4U) << "sent by the handler and by the polling";
}

TEST_F(Discovery, HandsTheThumbsticksToTheMouse) {
  GameControllerManager& manager = machine.launch();
  const auto pad = machine.plugPad();
  manager.joystickMouseController.start();
  pad->moveLeftThumbstick({1, 0});
  machine.settle();
  EXPECT_THAT(machine.takeEffects(), ElementsAre("mouse move 515 400"));
}

TEST_F(Discovery, NothingHappensOnceTheManagerIsGone) {
  machine.launch();
  const auto pad = machine.plugPad();
  machine.map({{GamepadButton::buttonB, KeyboardKey::b}});
  pad->press(GamepadButton::buttonB);  // its block waits on the main queue
  machine.manager.reset();
  EXPECT_THAT(machine.takeOutput(), ElementsAre("🛑 停止摇杆触摸屏滚动控制"));
  machine.plugPad();
  machine.platform.gameControllers.unplug(pad);
  machine.advance(1s);
  EXPECT_THAT(machine.take(), IsEmpty());
}

}  // namespace
}  // namespace vantorel::test
