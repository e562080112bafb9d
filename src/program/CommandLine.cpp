#include "CommandLine.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <map>

namespace vantorel {
namespace {

const std::map<std::string, bool> switchValues{{"on", true}, {"off", false}};

/// The options as they were given.
struct Options {
  std::string file;
  std::string screenshot;
  bool isMappingOn = true;
  bool areThumbsticksOn = false;
};

/// The options of the command line and which of them were given.
class Parser {
 public:
  Parser() {
    app.set_help_flag("-h,--help", "Print this help");
    app.set_version_flag("--version", "vantorel " VANTOREL_VERSION, "Print the version");
    play = app.add_option("--play", options.file, "Play the scenario FILE (\"-\": standard input)")
               ->type_name("FILE");
    demo = addFlag("--demo", "Play the built-in demonstration");
    screenshot = app.add_option("--screenshot", options.screenshot,
                                "With --play or --demo: draw the window as it stands at the end into PNG")
                     ->type_name("PNG");
    headless = addFlag("--headless", "Run without a window until a signal ends it");
    mapping = addSwitch("--mapping", options.isMappingOn, "With --headless: key mapping (default on)");
    thumbsticks = addSwitch("--thumbsticks", options.areThumbsticksOn,
                            "With --headless: thumbstick mouse (default off)");
    list = addFlag("--list-controllers", "List the connected controllers");
    toggle = addFlag("--toggle", "Switch the mapping of the running program on or off");
    show = addFlag("--show", "Show the window of the running program");
    quit = addFlag("--quit", "End the running program");
  }

  Command parse(std::vector<std::string> arguments) {
    try {
      std::reverse(arguments.begin(), arguments.end());  // as CLI11 takes them
      app.parse(arguments);
    } catch (const CLI::CallForHelp&) {
      return PrintText{app.help()};
    } catch (const CLI::CallForVersion& version) {
      return PrintText{std::string(version.what()) + "\n"};
    } catch (const CLI::ParseError& error) {
      return WrongArguments{firstLine(error.what())};
    }
    if (const auto conflict = findConflict()) return WrongArguments{*conflict};
    return command();
  }

 private:
  CLI::Option* addFlag(const std::string& name, const std::string& description) {
    return app.add_flag(name, description);
  }

  CLI::Option* addSwitch(const std::string& name, bool& value, const std::string& description) {
    return app.add_option(name, value, description)
        ->transform(CLI::CheckedTransformer(switchValues).description(""))
        ->type_name("on|off");
  }

  static std::string firstLine(const std::string& text) { return text.substr(0, text.find('\n')); }

  std::optional<std::string> findConflict() const {
    std::vector<const CLI::Option*> given;
    for (const CLI::Option* const option : {play, demo, headless, list, toggle, show, quit}) {
      if (option->count() > 0) given.push_back(option);
    }
    if (given.size() > 1) {
      return given[0]->get_name() + " and " + given[1]->get_name() + " do not go together";
    }
    if (screenshot->count() > 0 && play->count() + demo->count() == 0) {
      return "--screenshot needs --play or --demo";
    }
    for (const CLI::Option* const option : {mapping, thumbsticks}) {
      if (option->count() > 0 && headless->count() == 0) return option->get_name() + " needs --headless";
    }
    return std::nullopt;
  }

  Command command() const {
    if (play->count() + demo->count() > 0) {
      return PlayScenario{play->count() > 0 ? std::optional(options.file) : std::nullopt,
                          screenshot->count() > 0 ? std::optional(options.screenshot) : std::nullopt};
    }
    if (headless->count() > 0) return RunHeadless{options.isMappingOn, options.areThumbsticksOn};
    if (list->count() > 0) return ListControllers{};
    if (toggle->count() > 0) return RemoteCommand::toggle;
    if (show->count() > 0) return RemoteCommand::show;
    if (quit->count() > 0) return RemoteCommand::quit;
    return OpenWindow{};
  }

  CLI::App app{"A game controller drives the desktop.", "vantorel"};
  Options options;
  CLI::Option* play = nullptr;
  CLI::Option* demo = nullptr;
  CLI::Option* screenshot = nullptr;
  CLI::Option* headless = nullptr;
  CLI::Option* mapping = nullptr;
  CLI::Option* thumbsticks = nullptr;
  CLI::Option* list = nullptr;
  CLI::Option* toggle = nullptr;
  CLI::Option* show = nullptr;
  CLI::Option* quit = nullptr;
};

}  // namespace

Command parseCommandLine(const std::vector<std::string>& arguments) {
  if (arguments.empty()) return OpenWindow{};  // the usual start needs no parser to be built
  return Parser().parse(arguments);
}

}  // namespace vantorel
