#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>

#include "Transcript.h"
#include "UserDefaults.h"

namespace vantorel {

/// Settings in memory; what the program writes is recorded.
class EmbeddedUserDefaults : public UserDefaults {
 public:
  explicit EmbeddedUserDefaults(Transcript& record) : transcript(record) {}

  // As if an earlier run had written it: nothing is recorded.
  void prepareData(const std::string& key, const std::string& bytes);
  void prepareString(const std::string& key, const std::string& text);

  std::optional<std::string> data(const std::string& key) const override;
  std::optional<std::string> string(const std::string& key) const override;
  void setData(const std::string& key, const std::string& bytes) override;
  void setString(const std::string& key, const std::string& text) override;

 private:
  enum class Kind : std::uint8_t { data, string };
  struct Value {
    Kind kind;
    std::string content;
  };

  std::optional<std::string> find(const std::string& key, Kind kind) const;

  Transcript& transcript;
  std::map<std::string, Value> values;
};

}  // namespace vantorel
