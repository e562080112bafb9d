#pragma once

#include <SDL.h>

#include <functional>
#include <memory>

#include "GamepadButton.h"
#include "LinuxController.h"
#include "PolledFile.h"
#include "TriggerTravel.h"

namespace vantorel {

/// A pad that SDL holds open, and the writer of the states of its controller. SDL's thread.
class SdlPad {
 public:
  using ButtonChanged = std::function<void(GamepadButton button, bool isPressed)>;

  /// Opens SDL's device of that index; null, with the reason on standard error, when that fails.
  static std::unique_ptr<SdlPad> open(int deviceIndex);

  SdlPad(const SdlPad&) = delete;
  SdlPad& operator=(const SdlPad&) = delete;
  /// Leaves the controller neutral.
  ~SdlPad();

  const std::shared_ptr<LinuxController>& controller() const { return controller_; }

  /// The pad's own node, opened a second time: readable when the pad has news for SDL. Negative without one.
  int descriptor() const { return node_.descriptor(); }

  /// Empties the second opening of the node. One that has ended says that the pad is gone before SDL does:
  /// the controller is neutral from then on; the answer is then false.
  bool drainNode();

  /// Takes an event of this pad over into the states and calls `changed` for every button that it changes.
  /// What comes from a pad that is gone is no press of anyone's and is passed over.
  void handle(const SDL_Event& event, const ButtonChanged& changed);

 private:
  struct Close {
    void operator()(SDL_Joystick* joystick) const { SDL_JoystickClose(joystick); }
    void operator()(SDL_GameController* controller) const { SDL_GameControllerClose(controller); }
  };
  using JoystickHandle = std::unique_ptr<SDL_Joystick, Close>;
  using ControllerHandle = std::unique_ptr<SDL_GameController, Close>;

  SdlPad(JoystickHandle joystick, ControllerHandle gameController);

  static LinuxController::Description describe(SDL_Joystick& joystick, SDL_GameController* gameController);
  void becomeNeutral();
  void moveAxis(LinuxGamepad& gamepad, const SDL_ControllerAxisEvent& event, const ButtonChanged& changed);

  const JoystickHandle joystick_;
  const ControllerHandle gameController_;  // null for a joystick that SDL's database does not know
  const std::shared_ptr<LinuxController> controller_;
  PolledFile node_;
  bool isLost_ = false;
  TriggerTravel leftTrigger_;
  TriggerTravel rightTrigger_;
};

}  // namespace vantorel
