#include "AppLanguage.h"

namespace vantorel {

const std::array<AppLanguage, 2>& allAppLanguages() {
  static constexpr std::array<AppLanguage, 2> all{AppLanguage::english, AppLanguage::chinese};
  return all;
}

std::string_view rawValue(AppLanguage language) { return language == AppLanguage::chinese ? "中文" : "EN"; }

std::optional<AppLanguage> appLanguage(std::string_view rawValue) {
  for (const AppLanguage language : allAppLanguages()) {
    if (vantorel::rawValue(language) == rawValue) return language;
  }
  return std::nullopt;
}

std::string_view displayName(AppLanguage language) {
  return language == AppLanguage::chinese ? "简体中文" : "English";
}

}  // namespace vantorel
