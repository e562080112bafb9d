#include "SettingsFile.h"

#include <QByteArray>
#include <QFile>
#include <QJsonDocument>
#include <QStandardPaths>
#include <algorithm>
#include <iostream>
#include <stdexcept>
#include <system_error>
#include <utility>

#include "ReplaceFile.h"

namespace vantorel {
namespace {

namespace fs = std::filesystem;

const QString dataKind = QStringLiteral("data");
const QString textKind = QStringLiteral("text");

void report(const std::string& message) { std::cerr << "vantorel: " + message + "\n" << std::flush; }

std::optional<QByteArray> decoded(const QJsonValue& value) {
  const auto result =
      QByteArray::fromBase64Encoding(value.toString().toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
  if (!value.isString() || !result) return std::nullopt;
  return *result;
}

/// The values of one kind: an object whose members all satisfy `isValid`, or nothing.
template <class Predicate>
bool holdsOnly(const QJsonValue& kind, Predicate isValid) {
  if (kind.isUndefined()) return true;
  const QJsonObject members = kind.toObject();
  return kind.isObject() && std::all_of(members.begin(), members.end(), isValid);
}

std::optional<QJsonObject> parse(const QByteArray& bytes) {
  const QJsonDocument document = QJsonDocument::fromJson(bytes);
  const QJsonObject root = document.object();
  const bool isValid =
      document.isObject() &&
      holdsOnly(root[dataKind], [](const QJsonValue& value) { return decoded(value).has_value(); }) &&
      holdsOnly(root[textKind], [](const QJsonValue& value) { return value.isString(); });
  return isValid ? std::optional(root) : std::nullopt;
}

/// The first name for a file moved aside that is not in use.
fs::path freeNameBeside(const fs::path& path) {
  for (int number = 1;; ++number) {
    fs::path name = path;
    name += number == 1 ? ".damaged" : ".damaged" + std::to_string(number);
    std::error_code error;
    if (!fs::exists(fs::symlink_status(name, error))) return name;
  }
}

}  // namespace

fs::path SettingsFile::defaultPath() {
  const QString directory = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
  return fs::path(directory.toStdString()) / "vantorel" / "settings.json";
}

SettingsFile::SettingsFile(fs::path settingsPath) : path(std::move(settingsPath)) { load(); }

std::optional<std::string> SettingsFile::data(const std::string& key) const {
  const auto bytes = decoded(values[dataKind][QString::fromStdString(key)]);
  return bytes ? std::optional(bytes->toStdString()) : std::nullopt;
}

std::optional<std::string> SettingsFile::string(const std::string& key) const {
  const QJsonValue text = values[textKind][QString::fromStdString(key)];
  return text.isString() ? std::optional(text.toString().toStdString()) : std::nullopt;
}

void SettingsFile::setData(const std::string& key, const std::string& bytes) {
  set(dataKind, textKind, key, QString::fromLatin1(QByteArray::fromStdString(bytes).toBase64()));
}

void SettingsFile::setString(const std::string& key, const std::string& text) {
  set(textKind, dataKind, key, QString::fromStdString(text));
}

void SettingsFile::load() {
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (status.type() == fs::file_type::not_found) return;
  if (!fs::is_regular_file(status)) return moveAside(error ? error.message() : "not a file");
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return moveAside(file.errorString().toStdString());
  const QByteArray bytes = file.readAll();
  if (file.error() != QFileDevice::NoError) return moveAside(file.errorString().toStdString());
  const auto parsed = parse(bytes);
  if (!parsed) return moveAside("damaged");
  values = *parsed;
  removeUnfinished(path);
}

void SettingsFile::moveAside(const std::string& reason) {
  const std::string problem = "the settings in " + path.string() + " cannot be read (" + reason + "); ";
  const fs::path copy = freeNameBeside(path);
  std::error_code error;
  fs::rename(path, copy, error);
  isWritable = !error;
  if (isWritable) {
    report(problem + "they are kept as " + copy.string() + ", and the program begins with none");
  } else {
    report(problem + "the program begins with none and will save none, as they cannot be moved aside (" +
           error.message() + ")");
  }
}

void SettingsFile::set(const QString& kind, const QString& otherKind, const std::string& key,
                       const QString& value) {
  const QString name = QString::fromStdString(key);
  QJsonObject same = values[kind].toObject();
  QJsonObject other = values[otherKind].toObject();
  same[name] = value;
  other.remove(name);
  values[kind] = same;
  values[otherKind] = other;
  save();
}

void SettingsFile::save() {
  if (!isWritable) return;
  try {
    replaceFile(path, QJsonDocument(values).toJson());
  } catch (const std::exception& error) {
    if (hasReportedFailure) return;
    hasReportedFailure = true;
    report("the settings cannot be saved in " + path.string() + " (" + error.what() +
           "); they last until the program ends");
  }
}

}  // namespace vantorel
