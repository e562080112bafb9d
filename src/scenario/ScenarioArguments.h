#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "GamepadButton.h"
#include "KeyboardKey.h"
#include "ScenarioWords.h"

namespace vantorel {

/// The words of a scenario's line, taken one by one from the front. What is not there or not as asked for is
/// thrown as WrongScenario.
class ScenarioArguments {
 public:
  explicit ScenarioArguments(std::vector<std::string> lineWords) : words(std::move(lineWords)) {}

  bool isAtEnd() const { return next == words.size(); }

  /// Throws if there are words left.
  void finish() const;

  /// The next word; `what` names it, as in "a time".
  const std::string& take(std::string_view what);

  /// Takes the next word if it is `word`.
  bool takeIf(std::string_view word);

  /// Takes the next word, which has to be `word`.
  void expect(std::string_view word);

  /// True for `yes`, false for `no`.
  bool takeEither(std::string_view yes, std::string_view no);
  bool takeOnOff() { return takeEither("on", "off"); }

  GamepadButton takeButton();
  KeyboardKey takeKey();
  double takeDecimal();
  /// A decimal within -1..1, in single precision.
  float takeStickValue();

 private:
  std::vector<std::string> words;
  std::size_t next = 0;
};

/// `word` as messages show it.
std::string quoted(std::string_view word);

}  // namespace vantorel
