#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace vantorel {

/// The languages of the interface, in the order of the language menu.
enum class AppLanguage : std::uint8_t { english, chinese };

/// All languages in declaration order.
const std::array<AppLanguage, 2>& allAppLanguages();

/// The text under which `language` is stored: "EN" or "中文".
std::string_view rawValue(AppLanguage language);

/// The language stored as `rawValue`, or none; upper and lower case differ.
std::optional<AppLanguage> appLanguage(std::string_view rawValue);

/// The language's own name, as the language menu shows it.
std::string_view displayName(AppLanguage language);

}  // namespace vantorel
