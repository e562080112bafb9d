#include "WorldCommandParser.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <utility>

namespace vantorel {
namespace {

constexpr std::string_view noController = "nothing";

struct NamedFault {
  std::string_view name;
  Fault fault;
};

constexpr std::array<NamedFault, 8> namedFaults{{
    {"key-down", Fault::keyDown},
    {"key-up", Fault::keyUp},
    {"cursor", Fault::cursor},
    {"mouse-move", Fault::mouseMove},
    {"mouse-down", Fault::mouseDown},
    {"mouse-up", Fault::mouseUp},
    {"scroll", Fault::scroll},
    {"status-item", Fault::statusItem},
}};

WorldCommand parseTrust(ScenarioArguments& arguments, DeviceNames& /*devices*/) {
  return SetTrust{arguments.takeEither("granted", "denied")};
}

WorldCommand parseFile(ScenarioArguments& arguments, DeviceNames& /*devices*/) {
  return AddFile{arguments.take("a path")};
}

WorldCommand parseDefaults(ScenarioArguments& arguments, DeviceNames& /*devices*/) {
  PrepareDefaults command;
  command.key = arguments.take("a key");
  command.isData = arguments.takeEither("data", "string");
  command.text = arguments.take("a text");
  return command;
}

/// The buttons after `without`.
std::set<GamepadButton> parseMissingButtons(ScenarioArguments& arguments) {
  std::set<GamepadButton> missing;
  do {
    const GamepadButton button = arguments.takeButton();
    const bool canBeMissing = button == GamepadButton::leftThumbstick ||
                              button == GamepadButton::rightThumbstick || button == GamepadButton::options;
    if (!canBeMissing) {
      throw WrongScenario{"a controller is never without " + quoted(rawValue(button))};
    }
    missing.insert(button);
  } while (!arguments.isAtEnd());
  return missing;
}

ControllerProfile parseProfile(ScenarioArguments& arguments) {
  const std::string& word = arguments.take("a profile");
  if (word == "extended") return ControllerProfile::extended;
  if (word == "micro") return ControllerProfile::micro;
  if (word == "standard") return ControllerProfile::standard;
  throw WrongScenario{"\"extended\", \"micro\" or \"standard\" is expected, not " + quoted(word)};
}

WorldCommand parseDevice(ScenarioArguments& arguments, DeviceNames& devices) {
  DeclareDevice command;
  command.name = arguments.take("a device's name");
  if (command.name == noController) throw WrongScenario{"no device can be called \"nothing\""};
  if (devices.contains(command.name)) {
    throw WrongScenario{"the device " + quoted(command.name) + " is declared already"};
  }
  ControllerDescription& description = command.description;
  if (!arguments.takeIf("novendor")) {
    arguments.expect("vendor");
    description.vendorName = arguments.take("the vendor's name");
  }
  arguments.expect("category");
  description.productCategory = arguments.take("the category");
  description.profile = parseProfile(arguments);
  if (description.profile == ControllerProfile::extended && arguments.takeIf("without")) {
    description.missingButtons = parseMissingButtons(arguments);
  }
  arguments.finish();
  devices.insert(command.name);
  return command;
}

WorldCommand parseHotKeyFault(ScenarioArguments& arguments) {
  const double status = arguments.takeDecimal();
  using Status = std::numeric_limits<std::int32_t>;
  if (status != std::trunc(status) || status < Status::min() || status > Status::max()) {
    throw WrongScenario{"a status is a whole number of 32 bits"};
  }
  return SetHotKeyStatus{static_cast<std::int32_t>(status)};
}

WorldCommand parseFault(ScenarioArguments& arguments, DeviceNames& /*devices*/) {
  if (arguments.takeIf("hotkey")) return parseHotKeyFault(arguments);
  const std::string& name = arguments.take("a fault");
  for (const NamedFault& named : namedFaults) {
    if (named.name == name) return SetFault{named.fault, arguments.takeOnOff()};
  }
  throw WrongScenario{"there is no fault " + quoted(name)};
}

WorldCommand parseCursor(ScenarioArguments& arguments, DeviceNames& /*devices*/) {
  const double x = arguments.takeDecimal();
  const double y = arguments.takeDecimal();
  return SetCursor{{x, y}};
}

std::string takeDevice(ScenarioArguments& arguments, const DeviceNames& devices) {
  const std::string& name = arguments.take("a device's name");
  if (!devices.contains(name)) throw WrongScenario{"there is no device " + quoted(name) + " so far"};
  return name;
}

WorldCommand parsePlug(ScenarioArguments& arguments, DeviceNames& devices) {
  if (arguments.takeIf(noController)) return PlugNothing{};
  return PlugDevice{takeDevice(arguments, devices)};
}

WorldCommand parseUnplug(ScenarioArguments& arguments, DeviceNames& devices) {
  return UnplugDevice{takeDevice(arguments, devices)};
}

WorldCommand parsePress(ScenarioArguments& arguments, DeviceNames& devices) {
  std::string name = takeDevice(arguments, devices);
  return ChangeButton{std::move(name), arguments.takeButton(), true};
}

WorldCommand parseRelease(ScenarioArguments& arguments, DeviceNames& devices) {
  std::string name = takeDevice(arguments, devices);
  return ChangeButton{std::move(name), arguments.takeButton(), false};
}

WorldCommand parseStick(ScenarioArguments& arguments, DeviceNames& devices) {
  std::string name = takeDevice(arguments, devices);
  const Stick stick = arguments.takeEither("left", "right") ? Stick::left : Stick::right;
  const float x = arguments.takeStickValue();
  const float y = arguments.takeStickValue();
  return MoveStick{std::move(name), stick, {x, y}};
}

WorldCommand parseHotKey(ScenarioArguments& /*arguments*/, DeviceNames& /*devices*/) { return PressHotKey{}; }

struct NamedCommand {
  std::string_view name;
  WorldCommand (*parse)(ScenarioArguments& arguments, DeviceNames& devices);
};

constexpr std::array<NamedCommand, 12> namedCommands{{
    {"trust", parseTrust},
    {"file", parseFile},
    {"defaults", parseDefaults},
    {"device", parseDevice},
    {"fault", parseFault},
    {"cursor", parseCursor},
    {"plug", parsePlug},
    {"unplug", parseUnplug},
    {"press", parsePress},
    {"release", parseRelease},
    {"stick", parseStick},
    {"hotkey", parseHotKey},
}};

}  // namespace

std::optional<WorldCommand> parseWorldCommand(std::string_view name, ScenarioArguments& arguments,
                                              DeviceNames& devices) {
  for (const NamedCommand& named : namedCommands) {
    if (named.name == name) return named.parse(arguments, devices);
  }
  return std::nullopt;
}

}  // namespace vantorel
