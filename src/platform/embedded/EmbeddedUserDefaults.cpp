#include "EmbeddedUserDefaults.h"

namespace vantorel {

void EmbeddedUserDefaults::prepareData(const std::string& key, const std::string& bytes) {
  values.insert_or_assign(key, Value{Kind::data, bytes});
}

void EmbeddedUserDefaults::prepareString(const std::string& key, const std::string& text) {
  values.insert_or_assign(key, Value{Kind::string, text});
}

std::optional<std::string> EmbeddedUserDefaults::data(const std::string& key) const {
  return find(key, Kind::data);
}

std::optional<std::string> EmbeddedUserDefaults::string(const std::string& key) const {
  return find(key, Kind::string);
}

void EmbeddedUserDefaults::setData(const std::string& key, const std::string& bytes) {
  transcript.write("defaults " + key + " data " + bytes);
  prepareData(key, bytes);
}

void EmbeddedUserDefaults::setString(const std::string& key, const std::string& text) {
  transcript.write("defaults " + key + " string " + text);
  prepareString(key, text);
}

std::optional<std::string> EmbeddedUserDefaults::find(const std::string& key, Kind kind) const {
  const auto entry = values.find(key);
  if (entry == values.end() || entry->second.kind != kind) return std::nullopt;
  return entry->second.content;
}

}  // namespace vantorel
