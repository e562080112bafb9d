#include "ScenarioArguments.h"

#include "ScenarioNumbers.h"

namespace vantorel {

void ScenarioArguments::finish() const {
  if (!isAtEnd()) throw WrongScenario{quoted(words[next]) + " is one word too many"};
}

const std::string& ScenarioArguments::take(std::string_view what) {
  if (isAtEnd()) throw WrongScenario{std::string(what) + " is missing"};
  return words[next++];
}

bool ScenarioArguments::takeIf(std::string_view word) {
  if (isAtEnd() || words[next] != word) return false;
  ++next;
  return true;
}

void ScenarioArguments::expect(std::string_view word) {
  const std::string& found = take(quoted(word));
  if (found != word) throw WrongScenario{quoted(word) + " is expected, not " + quoted(found)};
}

bool ScenarioArguments::takeEither(std::string_view yes, std::string_view no) {
  const std::string either = quoted(yes) + " or " + quoted(no);
  const std::string& found = take(either);
  if (found != yes && found != no) throw WrongScenario{either + " is expected, not " + quoted(found)};
  return found == yes;
}

GamepadButton ScenarioArguments::takeButton() {
  const std::string& word = take("a button");
  const auto button = gamepadButton(word);
  if (!button) throw WrongScenario{"there is no button " + quoted(word)};
  return *button;
}

KeyboardKey ScenarioArguments::takeKey() {
  const std::string& word = take("a key");
  const auto key = keyboardKey(word);
  if (!key) throw WrongScenario{"there is no key " + quoted(word)};
  return *key;
}

double ScenarioArguments::takeDecimal() {
  const std::string& word = take("a number");
  const auto value = decimalNumber(word);
  if (!value) throw WrongScenario{quoted(word) + " is not a decimal number"};
  return *value;
}

float ScenarioArguments::takeStickValue() {
  const std::string& word = take("a stick value");
  const auto exact = decimalNumber(word);
  const auto value = singlePrecisionNumber(word);
  if (!exact || !value) throw WrongScenario{quoted(word) + " is not a decimal number"};
  if (*exact < -1 || *exact > 1) throw WrongScenario{"the stick value " + word + " is outside -1..1"};
  return *value;
}

std::string quoted(std::string_view word) { return "\"" + std::string(word) + "\""; }

}  // namespace vantorel
