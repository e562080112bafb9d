#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <set>
#include <utility>

#include "HotKeys.h"
#include "MainQueue.h"
#include "Transcript.h"

namespace vantorel {

/// Hot keys that are pressed by decree; registrations are recorded.
class EmbeddedHotKeys : public HotKeys {
 public:
  EmbeddedHotKeys(MainQueue& queue, Transcript& record) : mainQueue(queue), transcript(record) {}

  /// Registration answers `status` from now on; 0 lets it succeed.
  void setRegistrationStatus(std::int32_t status) { registrationStatus = status; }

  /// The hot key is pressed: the handler is called on the main queue if a combination is registered then.
  void press();

  void installHandler(std::function<void()> newHandler) override;
  HotKeyRegistration registerHotKey(const HotKey& hotKey) override;

 private:
  /// A key code and modifiers.
  using Combination = std::pair<std::uint32_t, std::uint32_t>;
  using Combinations = std::set<Combination>;
  class Registered;

  std::int32_t statusFor(const Combination& combination) const;

  MainQueue& mainQueue;
  Transcript& transcript;
  std::function<void()> handler;
  std::int32_t registrationStatus = 0;
  std::shared_ptr<Combinations> registered = std::make_shared<Combinations>();
};

}  // namespace vantorel
