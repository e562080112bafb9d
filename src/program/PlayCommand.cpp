#include <array>
#include <cstddef>
#include <fstream>
#include <iostream>
#include <optional>
#include <string>
#include <variant>

#include "Commands.h"
#include "DemoScenario.h"
#include "ScenarioParser.h"
#include "ScenarioPlayer.h"
#include "Screenshot.h"
#include "StandardError.h"

namespace vantorel {
namespace {

/// What is left in `stream`, which is bad afterwards if it cannot be read: a directory opens like a file.
std::string readAll(std::istream& stream) {
  std::string text;
  std::array<char, 4096> part{};
  do {
    stream.read(part.data(), part.size());
    text.append(part.data(), static_cast<std::size_t>(stream.gcount()));
  } while (stream);
  return text;
}

/// The text of the scenario file `name`, or none when it cannot be read.
std::optional<std::string> readScenario(const std::string& name) {
  if (name == "-") return readAll(std::cin);
  std::ifstream stream(name, std::ios::binary);
  std::string text = readAll(stream);
  if (!stream.is_open() || stream.bad()) return std::nullopt;
  return text;
}

int play(const std::string& text, const std::string& fileName, const std::optional<std::string>& screenshot) {
  const auto parsed = parseScenario(text, fileName);
  if (const auto* const error = std::get_if<ScenarioError>(&parsed)) {
    std::cerr << error->message() << '\n';
    return 2;
  }
  ScenarioPlayer player(std::get<Scenario>(parsed), [](std::string_view line) { std::cout << line << '\n'; });
  player.play();
  std::cout << std::flush;
  if (!screenshot) return 0;
  if (player.window() == nullptr) {
    complain("the program does not run at the end of " + fileName + ": there is no window to draw");
    return 1;
  }
  const auto problem = drawScreenshot(*player.window(), *screenshot);
  if (problem) complain(*problem);
  return problem ? 1 : 0;
}

}  // namespace

int playScenario(const PlayScenario& command) {
  if (!command.file) return play(std::string(demoScenario()), "demo", command.screenshot);
  const auto text = readScenario(*command.file);
  if (!text) {
    complain("cannot read " + (command.file->empty() ? "\"\"" : *command.file));
    return 2;
  }
  return play(*text, *command.file, command.screenshot);
}

}  // namespace vantorel
