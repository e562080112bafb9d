#include "LocalizationManager.h"

#include <string>

#include "Shared.h"

namespace vantorel {
namespace {

constexpr const char* userDefaultsKey = "AppLanguage";

}  // namespace

LocalizationManager::LocalizationManager(UserDefaults& userDefaults) : defaults(userDefaults) {
  const auto stored = defaults.string(userDefaultsKey);
  if (!stored) return;
  if (const auto saved = appLanguage(*stored)) setCurrentLanguage(*saved);
}

LocalizationManager& LocalizationManager::shared() { return Shared<LocalizationManager>::instance(); }

void LocalizationManager::setCurrentLanguage(AppLanguage chosen) {
  language = chosen;
  defaults.setString(userDefaultsKey, std::string(rawValue(chosen)));
}

}  // namespace vantorel
