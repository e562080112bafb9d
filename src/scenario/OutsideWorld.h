#pragma once

#include <map>
#include <memory>
#include <string>

#include "EmbeddedPlatform.h"
#include "ScenarioCommand.h"

namespace vantorel {

/// Does what a scenario's outside world does to the embedded platform.
class OutsideWorld {
 public:
  /// `embeddedPlatform` outlives this object.
  explicit OutsideWorld(EmbeddedPlatform& embeddedPlatform) : platform(embeddedPlatform) {}

  /// A device named by `command` has been declared before.
  void perform(const WorldCommand& command);

 private:
  void perform(const SetTrust& command) { platform.accessibility.setGranted(command.isGranted); }
  void perform(const AddFile& command) { platform.fileManager.addFile(command.path); }
  void perform(const PrepareDefaults& command);
  void perform(const DeclareDevice& command);
  void perform(const SetFault& command) { platform.faults.set(command.fault, command.isOn); }
  void perform(const SetHotKeyStatus& command) { platform.hotKeys.setRegistrationStatus(command.status); }
  void perform(const SetCursor& command) { platform.eventPoster.setCursor(command.location); }
  void perform(const PlugDevice& command) { platform.gameControllers.plug(devices.at(command.name)); }
  void perform(const PlugNothing& /*command*/) { platform.gameControllers.plugNothing(); }
  void perform(const UnplugDevice& command) { platform.gameControllers.unplug(devices.at(command.name)); }
  void perform(const ChangeButton& command);
  void perform(const MoveStick& command);
  void perform(const PressHotKey& /*command*/) { platform.hotKeys.press(); }

  EmbeddedPlatform& platform;
  std::map<std::string, std::shared_ptr<EmbeddedController>> devices;
};

}  // namespace vantorel
