#include "EmbeddedHotKeys.h"

#include <string>

namespace vantorel {
namespace {

/// Carbon's eventHotKeyExistsErr.
constexpr std::int32_t alreadyRegistered = -9878;

/// The four characters that the number of a signature stands for.
std::string characters(std::uint32_t signature) {
  std::string text;
  for (const unsigned shift : {24U, 16U, 8U, 0U}) text += static_cast<char>((signature >> shift) & 0xFFU);
  return text;
}

}  // namespace

class EmbeddedHotKeys::Registered : public HotKeyReference {
 public:
  Registered(std::shared_ptr<Combinations> all, Combination own)
      : combinations(std::move(all)), combination(std::move(own)) {}
  Registered(const Registered&) = delete;
  Registered& operator=(const Registered&) = delete;
  ~Registered() override { combinations->erase(combination); }

 private:
  std::shared_ptr<Combinations> combinations;
  Combination combination;
};

void EmbeddedHotKeys::press() {
  mainQueue.post([this] {
    const auto current = handler;  // it may replace itself
    if (current && !registered->empty()) current();
  });
}

void EmbeddedHotKeys::installHandler(std::function<void()> newHandler) { handler = std::move(newHandler); }

HotKeyRegistration EmbeddedHotKeys::registerHotKey(const HotKey& hotKey) {
  const Combination combination{hotKey.keyCode, hotKey.modifiers};
  HotKeyRegistration registration;
  registration.status = statusFor(combination);
  transcript.write("hotkey register " + characters(hotKey.signature) + " " + std::to_string(hotKey.id) + " " +
                   std::to_string(hotKey.keyCode) + " " + std::to_string(hotKey.modifiers) + " -> " +
                   std::to_string(registration.status));
  if (registration.status == 0) {
    registered->insert(combination);
    registration.reference = std::make_unique<Registered>(registered, combination);
  }
  return registration;
}

std::int32_t EmbeddedHotKeys::statusFor(const Combination& combination) const {
  if (registrationStatus != 0) return registrationStatus;
  return registered->contains(combination) ? alreadyRegistered : 0;
}

}  // namespace vantorel
