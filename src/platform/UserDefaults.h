#pragma once

#include <optional>
#include <string>

namespace vantorel {

/// The user's settings, which outlast the program. A value is data (bytes) or text; who asks for one kind
/// does not find the other. Main thread.
class UserDefaults {
 public:
  virtual ~UserDefaults() = default;

  virtual std::optional<std::string> data(const std::string& key) const = 0;
  virtual std::optional<std::string> string(const std::string& key) const = 0;

  /// Replaces what stood under `key`, of either kind.
  virtual void setData(const std::string& key, const std::string& bytes) = 0;
  virtual void setString(const std::string& key, const std::string& text) = 0;
};

}  // namespace vantorel
