#include "UserCommandParser.h"

#include <array>
#include <string>

namespace vantorel {
namespace {

/// A command without arguments.
template <class Command>
UserCommand parsePlain(ScenarioArguments& /*arguments*/) {
  return Command{};
}

/// A command that is `on` or `off`.
template <class Command>
UserCommand parseSwitch(ScenarioArguments& arguments) {
  return Command{arguments.takeOnOff()};
}

UserCommand parseMenu(ScenarioArguments& arguments) { return ChooseMenuItem{arguments.take("a title")}; }

UserCommand parsePick(ScenarioArguments& arguments) {
  const GamepadButton button = arguments.takeButton();
  if (arguments.isAtEnd()) return OpenPicker{button};
  if (arguments.takeIf("cancel")) return CancelPicker{button};
  return PickKey{button, arguments.takeKey()};
}

UserCommand parseLanguage(ScenarioArguments& arguments) {
  const std::string& word = arguments.take("a language");
  const auto language = appLanguage(word);
  if (!language) throw WrongScenario{"there is no language " + quoted(word)};
  return ChooseLanguage{*language};
}

UserCommand parseJoystick(ScenarioArguments& arguments) {
  if (arguments.takeIf("mouse")) return MoveSlider{Slider::mouse, arguments.takeDecimal()};
  if (arguments.takeIf("scroll")) return MoveSlider{Slider::scroll, arguments.takeDecimal()};
  if (arguments.takeIf("deadzone")) return MoveSlider{Slider::deadzone, arguments.takeDecimal()};
  return SetJoystick{arguments.takeOnOff()};
}

struct NamedCommand {
  std::string_view name;
  UserCommand (*parse)(ScenarioArguments& arguments);
};

constexpr std::array<NamedCommand, 13> namedCommands{{
    {"launch", parsePlain<Launch>},
    {"quit", parsePlain<Quit>},
    {"menu", parseMenu},
    {"mapping", parseSwitch<SetMapping>},
    {"pick", parsePick},
    {"language", parseLanguage},
    {"joystick", parseJoystick},
    {"menubar", parseSwitch<SetMenuBar>},
    {"refresh", parsePlain<RefreshSystem>},
    {"probe", parsePlain<StartProbe>},
    {"fix", parsePlain<FixPermission>},
    {"driver", parsePlain<DownloadDriver>},
    {"show", parsePlain<ShowState>},
}};

}  // namespace

std::optional<UserCommand> parseUserCommand(std::string_view name, ScenarioArguments& arguments) {
  for (const NamedCommand& named : namedCommands) {
    if (named.name == name) return named.parse(arguments);
  }
  return std::nullopt;
}

}  // namespace vantorel
