#pragma once

#include <QJsonObject>
#include <filesystem>

#include "UserDefaults.h"

namespace vantorel {

/// The user's settings in a JSON file: {"data": {key: bytes as Base64}, "text": {key: text}}.
///
/// It is read once. Every change is on the disk before the setter returns; the file is replaced as a whole,
/// so that whatever happens meanwhile, the old or the new settings are there. A file that cannot be read or
/// understood is moved aside, never written over, and the settings begin empty. What goes wrong is told on
/// standard error; the values set are then kept for this run.
class SettingsFile final : public UserDefaults {
 public:
  /// The file under the user's configuration directory.
  static std::filesystem::path defaultPath();

  /// The file and its directory are made when the first value is set.
  explicit SettingsFile(std::filesystem::path settingsPath);

  std::optional<std::string> data(const std::string& key) const override;
  std::optional<std::string> string(const std::string& key) const override;
  void setData(const std::string& key, const std::string& bytes) override;
  void setString(const std::string& key, const std::string& text) override;

 private:
  void load();
  void moveAside(const std::string& reason);
  void set(const QString& kind, const QString& otherKind, const std::string& key, const QString& value);
  void save();

  const std::filesystem::path path;
  QJsonObject values;
  bool isWritable = true;  // false when what stands in the file could not be moved aside
  bool hasReportedFailure = false;
};

}  // namespace vantorel
