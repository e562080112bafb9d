#include "ControllerType.h"

#include <algorithm>
#include <array>
#include <string>

namespace vantorel {
namespace {

struct TypeNames {
  std::string_view caseName;
  std::string_view displayText;
};

/// Indexed by the type's value.
constexpr std::array<TypeNames, 5> names{{
    {"unknown", "Unknown"},
    {"xbox", "Xbox"},
    {"ps4", "PS4 DualShock 4"},
    {"ps5", "PS5 DualSense"},
    {"switchPro", "Switch Pro Controller"},
}};

enum class TestedText : std::uint8_t { vendor, category };

struct FamilyTest {
  TestedText text;
  std::string_view pattern;
  ControllerType type;
};

/// In order; the first that holds decides. "wireless controller" is the PlayStation 4 pad's own name, so it
/// stands before the tests for the PlayStation 5; Switch pads are told by their vendor name alone.
constexpr std::array<FamilyTest, 10> familyTests{{
    {TestedText::vendor, "xbox", ControllerType::xbox},
    {TestedText::vendor, "360", ControllerType::xbox},
    {TestedText::category, "xbox", ControllerType::xbox},
    {TestedText::vendor, "dualshock", ControllerType::ps4},
    {TestedText::vendor, "wireless controller", ControllerType::ps4},
    {TestedText::category, "dualshock", ControllerType::ps4},
    {TestedText::vendor, "dualsense", ControllerType::ps5},
    {TestedText::category, "dualsense", ControllerType::ps5},
    {TestedText::vendor, "switch", ControllerType::switchPro},
    {TestedText::vendor, "pro controller", ControllerType::switchPro},
}};

/// The patterns are ASCII, so only ASCII letters have to be lowered.
std::string lowered(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(), [](char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
  });
  return text;
}

}  // namespace

std::string_view displayText(ControllerType type) {
  return names.at(static_cast<std::size_t>(type)).displayText;
}

std::string_view caseName(ControllerType type) { return names.at(static_cast<std::size_t>(type)).caseName; }

ControllerType identifyControllerType(const Controller& controller) {
  const std::string vendor = lowered(controller.vendorName().value_or(""));
  const std::string category = lowered(controller.productCategory());
  for (const FamilyTest& test : familyTests) {
    const std::string& text = test.text == TestedText::vendor ? vendor : category;
    if (text.find(test.pattern) != std::string::npos) return test.type;
  }
  return ControllerType::unknown;
}

}  // namespace vantorel
