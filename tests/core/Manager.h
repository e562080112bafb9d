#pragma once

#include <memory>
#include <string>
#include <vector>

#include "GameControllerManager.h"
#include "Machine.h"

namespace vantorel::test {

/// A machine with a controller manager on it.
class Manager : public Machine {
 public:
  /// Makes the manager, which looks for controllers, and forgets what was recorded.
  GameControllerManager& launch() {
    manager =
        std::make_unique<GameControllerManager>(platform.ports(), simulator, [this] { return language; });
    settle();
    take();
    return *manager;
  }

  /// Maps each given button, and forgets what was recorded.
  void map(const std::vector<ButtonMapping>& mappings) {
    manager->updateMappings(mappings);
    settle();
    take();
  }

  AppLanguage language = AppLanguage::english;
  KeyboardSimulator simulator{platform.ports(), [this] { return language; }};
  std::unique_ptr<GameControllerManager> manager;
};

}  // namespace vantorel::test
