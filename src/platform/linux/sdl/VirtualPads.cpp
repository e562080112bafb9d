#include "VirtualPads.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <iomanip>
#include <sstream>
#include <stdexcept>
#include <string_view>
#include <system_error>
#include <utility>

#include "VirtualPad.h"

namespace vantorel {
namespace {

constexpr std::array axisNames{
    std::pair{std::string_view("leftx"), SDL_CONTROLLER_AXIS_LEFTX},
    std::pair{std::string_view("lefty"), SDL_CONTROLLER_AXIS_LEFTY},
    std::pair{std::string_view("rightx"), SDL_CONTROLLER_AXIS_RIGHTX},
    std::pair{std::string_view("righty"), SDL_CONTROLLER_AXIS_RIGHTY},
    std::pair{std::string_view("triggerleft"), SDL_CONTROLLER_AXIS_TRIGGERLEFT},
    std::pair{std::string_view("triggerright"), SDL_CONTROLLER_AXIS_TRIGGERRIGHT},
};

SDL_GameControllerAxis axisNamed(const std::string& name) {
  const auto* const found = std::find_if(axisNames.begin(), axisNames.end(),
                                         [&](const auto& entry) { return entry.first == name; });
  if (found == axisNames.end()) throw std::invalid_argument("no such axis");
  return found->second;
}

GamepadButton buttonNamed(const std::string& name) {
  const auto button = gamepadButton(name);
  if (!button) throw std::invalid_argument("no such button");
  return *button;
}

/// The words of a line, taken one after the other.
class Words {
 public:
  explicit Words(const std::string& line) : line_(line) {}

  bool areLeft() { return !(line_ >> std::ws).eof(); }

  std::string next() {
    std::string word;
    if (!(line_ >> std::quoted(word))) throw std::invalid_argument("something is missing");
    return word;
  }

  template <class Integer>
  Integer nextNumber(int base) {
    const std::string word = next();
    Integer number{};
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number, base);
    if (error == std::errc::result_out_of_range) throw std::invalid_argument("a number out of range");
    if (error != std::errc() || end != word.data() + word.size()) throw std::invalid_argument("no number");
    return number;
  }

  void end() {
    if (areLeft()) throw std::invalid_argument("something is too much");
  }

 private:
  std::istringstream line_;
};

}  // namespace

VirtualPads::VirtualPads() = default;
VirtualPads::~VirtualPads() = default;

void VirtualPads::execute(const std::string& line) {
  Words words(line);
  if (!words.areLeft()) return;
  const std::string verb = words.next();
  const std::string name = words.next();
  if (verb == "attach") {
    if (pads_.contains(name)) throw std::invalid_argument("there is such a pad already");
    const bool hasIds = words.areLeft();
    const auto vendor = hasIds ? words.nextNumber<std::uint16_t>(16) : std::uint16_t{0};
    const auto product = hasIds ? words.nextNumber<std::uint16_t>(16) : std::uint16_t{0};
    words.end();
    pads_.emplace(name, std::make_unique<VirtualPad>(name, vendor, product));
  } else if (verb == "detach") {
    words.end();
    pad(name);
    pads_.erase(name);
  } else if (verb == "button") {
    const GamepadButton button = buttonNamed(words.next());
    const int isPressed = words.nextNumber<int>(10);
    words.end();
    pad(name).setButton(button, isPressed != 0);
  } else if (verb == "axis") {
    const SDL_GameControllerAxis axis = axisNamed(words.next());
    const auto value = words.nextNumber<std::int16_t>(10);
    words.end();
    pad(name).setAxis(axis, value);
  } else {
    throw std::invalid_argument("no such command");
  }
}

VirtualPad& VirtualPads::pad(const std::string& name) {
  const auto found = pads_.find(name);
  if (found == pads_.end()) throw std::invalid_argument("no such pad");
  return *found->second;
}

}  // namespace vantorel
