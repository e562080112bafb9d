#include "SdlSession.h"

#include <SDL.h>
#include <unistd.h>

#include <stdexcept>
#include <string>
#include <utility>

namespace vantorel {
namespace {

/// Beats the environment: the waking by device nodes and the meaning of the buttons depend on these.
void require(const char* hint, const char* value) { SDL_SetHintWithPriority(hint, value, SDL_HINT_OVERRIDE); }

/// Where no udev runs (in a container), SDL waits for its word in vain unless it is told to watch the
/// directory of the nodes instead.
void watchDirectoryWithoutUdev() {
  if (access("/run/udev/control", F_OK) != 0) SDL_SetHint("SDL_JOYSTICK_DISABLE_UDEV", "1");
}

}  // namespace

SdlSession::SdlSession() {
  require(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
  require(SDL_HINT_JOYSTICK_ALLOW_BACKGROUND_EVENTS, "1");
  require(SDL_HINT_JOYSTICK_HIDAPI, "0");  // it would read the pads past their nodes, and in a thread
  require(SDL_HINT_AUTO_UPDATE_JOYSTICKS, "1");
  require(SDL_HINT_ACCELEROMETER_AS_JOYSTICK, "0");
  require(SDL_HINT_GAMECONTROLLER_USE_BUTTON_LABELS, "0");  // A is the bottom button on every pad
  watchDirectoryWithoutUdev();
  if (SDL_Init(SDL_INIT_GAMECONTROLLER) != 0) throw std::runtime_error(SDL_GetError());
}

SdlSession::~SdlSession() { SDL_Quit(); }

void SdlSession::setMonitorsBackground(bool should) {
  if (std::exchange(monitorsBackground_, should) == should) return;
  require(SDL_HINT_JOYSTICK_ALLOW_BACKGROUND_EVENTS, should ? "1" : "0");
}

}  // namespace vantorel
