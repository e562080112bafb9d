#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>

#include "AppLanguage.h"
#include "EmbeddedController.h"
#include "EventPoster.h"
#include "Faults.h"
#include "GamepadButton.h"
#include "KeyboardKey.h"

namespace vantorel {

// What the outside world does, at once when the line is due.

struct SetTrust {
  bool isGranted;
};
struct AddFile {
  std::string path;
};
struct PrepareDefaults {
  std::string key;
  bool isData;  ///< data, else a string
  std::string text;
};
struct DeclareDevice {
  std::string name;
  ControllerDescription description;
};
struct SetFault {
  Fault fault;
  bool isOn;
};
struct SetHotKeyStatus {
  std::int32_t status;
};
struct SetCursor {
  Point location;
};
struct PlugDevice {
  std::string name;
};
/// Something that is no controller connects.
struct PlugNothing {};
struct UnplugDevice {
  std::string name;
};
struct ChangeButton {
  std::string name;
  GamepadButton button;
  bool isPressed;
};
enum class Stick : std::uint8_t { left, right };
struct MoveStick {
  std::string name;
  Stick stick;
  StickPosition position;
};
struct PressHotKey {};

using WorldCommand =
    std::variant<SetTrust, AddFile, PrepareDefaults, DeclareDevice, SetFault, SetHotKeyStatus, SetCursor,
                 PlugDevice, PlugNothing, UnplugDevice, ChangeButton, MoveStick, PressHotKey>;

// What the user does with the program, as a block on the main queue.

struct Launch {};
struct Quit {};
struct ChooseMenuItem {
  std::string title;
};
struct SetMapping {
  bool isOn;
};
struct SetJoystick {
  bool isOn;
};
struct SetMenuBar {
  bool isOn;
};
enum class Slider : std::uint8_t { mouse, scroll, deadzone };
struct MoveSlider {
  Slider slider;
  double value;
};
/// Opens the key picker and leaves it open.
struct OpenPicker {
  GamepadButton button;
};
/// Opens the key picker and closes it again.
struct CancelPicker {
  GamepadButton button;
};
/// Opens the key picker and chooses a key.
struct PickKey {
  GamepadButton button;
  KeyboardKey key;
};
struct ChooseLanguage {
  AppLanguage language;
};
struct RefreshSystem {};
struct StartProbe {};
struct FixPermission {};
struct DownloadDriver {};
struct ShowState {};

using UserCommand = std::variant<Launch, Quit, ChooseMenuItem, SetMapping, SetJoystick, SetMenuBar,
                                 MoveSlider, OpenPicker, CancelPicker, PickKey, ChooseLanguage, RefreshSystem,
                                 StartProbe, FixPermission, DownloadDriver, ShowState>;

/// What one line of a scenario asks for.
using ScenarioCommand = std::variant<WorldCommand, UserCommand>;

}  // namespace vantorel
