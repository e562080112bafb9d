#include "ButtonMapping.h"

#include <nlohmann/json.hpp>

namespace vantorel {
namespace {

using Json = nlohmann::ordered_json;

/// The text of a member of `object`, or none if it is missing or not a text.
std::optional<std::string> textMember(const Json& object, const char* name) {
  if (!object.is_object()) return std::nullopt;
  const auto member = object.find(name);
  if (member == object.end() || !member->is_string()) return std::nullopt;
  return member->get<std::string>();
}

std::optional<ButtonMapping> buttonMapping(const Json& object) {
  const auto buttonText = textMember(object, "gamepadButton");
  const auto keyText = textMember(object, "keyboardKey");
  if (!buttonText || !keyText) return std::nullopt;
  const auto button = gamepadButton(*buttonText);
  const auto key = keyboardKey(*keyText);
  if (!button || !key) return std::nullopt;
  return ButtonMapping(*button, *key);
}

}  // namespace

std::string toJson(const std::vector<ButtonMapping>& mappings) {
  Json array = Json::array();
  for (const ButtonMapping& mapping : mappings) {
    array.push_back(
        {{"gamepadButton", rawValue(mapping.gamepadButton)}, {"keyboardKey", rawValue(mapping.keyboardKey)}});
  }
  return array.dump();
}

std::optional<std::vector<ButtonMapping>> buttonMappings(std::string_view json) {
  const Json array = Json::parse(json, nullptr, /*allow_exceptions=*/false);
  if (!array.is_array()) return std::nullopt;
  std::vector<ButtonMapping> mappings;
  for (const Json& element : array) {
    const auto mapping = buttonMapping(element);
    if (!mapping) return std::nullopt;
    mappings.push_back(*mapping);
  }
  return mappings;
}

}  // namespace vantorel
